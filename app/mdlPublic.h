#pragma once

/// The public state that all forms share: the part table, the chart data store, the display settings.

#include "calc/ChartStore.h"
#include "calc/Log10.h"
#include "partdata/PartTable.h"
#include "partdata/SpecialParts.h"

#include <cstdint>
#include <functional>
#include <string>

/// The check marks of the main window's view menus, the only store of the two display settings.
struct ViewMarks
{
    /// Whether item i of "EIA code", "JIS code" is checked.
    std::function<bool(int)> mnuViewCode = [](int index) { return index == 0; };
    /// Whether item i of "Global Part Number", "Previous Part Number" is checked.
    std::function<bool(int)> mnuPartNum = [](int index) { return index == 0; };
};

/// The type of the one global object, `mdlPublic`.
struct PublicModule
{
    /// Separator between the program folder and a file name.
    std::string PathSep;
    /// 1 when the Japanese help book lies in the program folder, else 2; see `HelpLanguages`.
    std::int16_t HelpLanguage = 2;
    /// The degree sign of temperature units, in the single-byte code page.
    std::string DegreeSign;
    /// Set while a form fills its lists, so that its handlers stay still.
    bool Updating = false;
    /// Every capacitor of the range; read-only after start-up.
    PartTable Parts;
    /// Every plotted line.
    ChartStore Charts;
    /// Handed over by the main window when it is built.
    ViewMarks Marks;
};

extern PublicModule mdlPublic;

/// 0 while global part numbers are shown, 2 while previous ones are.
std::int16_t GetNumberingOffset();

/// 0 while the EIA code is shown, 1 while the JIS code is.
std::int16_t GetCodeForm();

/// Index into `PartNum` of the part-number form on display, 0 to 3.
std::int16_t GetPartNumForm();

/// The naming on display, for the calculations.
CodeView GetCodeView();

/// Sets `mdlPublic.Updating` for its lifetime and restores the former value.
class UpdatingScope
{
public:
    UpdatingScope()
        : former(mdlPublic.Updating)
    {
        mdlPublic.Updating = true;
    }
    ~UpdatingScope() { mdlPublic.Updating = former; }
    UpdatingScope(const UpdatingScope&) = delete;
    UpdatingScope& operator=(const UpdatingScope&) = delete;

private:
    bool former;
};
