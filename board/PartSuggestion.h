#pragma once

/// Which part of the range passes in the place of one that fails.

#include "board/BomSettings.h"
#include "board/PartVerdict.h"

/// The first part that holds all limits with the reserve below which a warning is told: of the same size
/// before smaller ones, before larger ones up to the largest that is asked for; then of the nearest nominal
/// capacitance, of the same characteristic, of the least rating. Where none does, the fewest of one part in
/// parallel, up to four; nothing where that does not help.
std::optional<BomSuggestion> SuggestionFor(const PartRecord& failing, const BomQuestion& question,
                                           const PartTable& parts, const BomSettings& settings);
