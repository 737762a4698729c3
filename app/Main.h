#pragma once

/// The start-up order of the program.

#include <functional>
#include <optional>
#include <string>

/// Starts the program: refuses a second instance, settles path separator and help language, loads the part
/// data, shows the main window through `showMainWindow`, settles the degree sign. The part data are those of
/// `partFolder`, where a user names one, and of the program's folder else; the help books are always the
/// program's.
///
/// Returns false when another instance runs already; the user has then been told, and nothing is loaded.
/// Throws RunTimeError when the part data cannot be loaded (see `LoadPartData`).
bool Main(const std::string& programFolder, const std::function<void()>& showMainWindow,
          const std::optional<std::string>& partFolder = std::nullopt);
