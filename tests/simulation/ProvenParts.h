#pragma once

/// The parts whose models are run in a simulator, and how far.

#include "partdata/PartRecord.h"

#include <string>
#include <vector>

/// True in the whole proof, which TAVIK_PROVE_MODELS in the environment asks for: many parts at all points of
/// their charts. Otherwise one part of each kind at some points.
bool IsWholeProof();

/// Kinds of parts by the law and the data behind their models.
struct ProvenPart
{
    std::string Kind;
    const PartRecord* Part = nullptr;

    std::string Name() const { return std::string(Part->PartNum[0]); }
    /// The model's text.
    std::string Model() const;
    double RatedVolts() const { return Part->Data[Value::RatedVoltage]; }
    double NominalFarads() const { return 1e-12 * double{Part->Data[Value::NominalCapacitance]}; }
};

std::vector<ProvenPart> ProvenParts();

/// Those of a kind that names a loss resistance.
std::vector<ProvenPart> ProvenPartsWithLoss();

/// Tells the worst of a check in the whole proof: a line of its table, and at the end the worst of each kind.
void TellWorst(const std::string& check, const ProvenPart& part, double worst, double seconds);
