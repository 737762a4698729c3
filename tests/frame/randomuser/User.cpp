#include "tests/frame/randomuser/User.h"

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"

#include <QLocale>
#include <QMdiArea>
#include <QSettings>

#include <numeric>

bool HasPrinters()
{
    return qEnvironmentVariableIsSet("PRINTED_FILES");
}

static constexpr int RememberedActions = 25;

const std::vector<User::Choice>& User::Choices()
{
    // Where there are printers, they are what matters.
    static const int printing = HasPrinters() ? 10 : 1;
    static const std::vector<Choice> choices = {
        {60, "chart type", &User::ClickChartType},
        {10, "chart type by arrow", &User::StepChartType},
        {130, "list", &User::PickFromList},
        {15, "part by arrow", &User::StepThroughParts},
        {50, "part number", &User::TypePart},
        {20, "parameter", &User::ClickParameter},
        {110, "condition", &User::TypeCondition},
        {60, "all conditions", &User::TypeAllConditions},
        {50, "leave by key", &User::LeaveByKey},
        {25, "access key", &User::GoByAccessKey},
        {90, "plot by mouse", &User::PlotByMouse},
        {30, "plot by key", &User::PlotByKey},
        {2, "plot by access key", &User::PlotByAccessKey},
        {3, "plot by Enter", &User::PlotByEnter},
        {60, "plot something", &User::PlotSomething},
        {40, "activate", &User::Activate},
        {25, "close", &User::CloseOne},
        {30, "minimise or restore", &User::MinimiseOrRestore},
        {10, "double click", &User::DoubleClick},
        {20, "drag", &User::Drag},
        {12, "code", &User::SwitchCode},
        {25, "numbering", &User::SwitchNumbering},
        {10, "reset", &User::Reset},
        {4, "close all", &User::CloseAll},
        {10, "menus", &User::LookIntoMenus},
        {6, "resize", &User::ResizeMain},
        {1, "restart", &User::Restart},
        {40, "range", &User::SetRange},
        {40, "point", &User::Point},
        {4, "copy", &User::Copy},
        {20, "save", &User::Save},
        {8 * printing, "print data", &User::PrintData},
        {8 * printing, "print chart", &User::PrintChart},
        {3 * printing, "page setup", &User::SetUpPage},
        {6, "about", &User::About},
        {4, "help", &User::Help},
    };
    return choices;
}

User::User(unsigned seed)
    : random(seed)
{
    // Some users write a comma in their numbers.
    QLocale::setDefault(Chance(30) ? QLocale(QLocale::German) : QLocale::c());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, files.filePath("settings"));
    Start();
    lastFolder = QDir::currentPath();
}

User::~User()
{
    QLocale::setDefault(QLocale::c());
}

void User::Start()
{
    hands.reset();
    hands = std::make_unique<Hands>();
    hands->Ready();
    form = std::make_unique<PlainForm>(mdlPublic.Parts);
    charts = {};
    code = 0;
    numbering = 0;
    comparedLists.clear();
    printFile.clear();
    // No book lies in this place.
    mdlPublic.PathSep = "/nowhere/";
}

void User::Act()
{
    static const int all = std::accumulate(Choices().begin(), Choices().end(), 0,
                                           [](int sum, const Choice& choice) { return sum + choice.Share; });
    int lot = Lot(all);
    const Choice* chosen = Choices().data();
    while (lot >= chosen->Share)
    {
        lot -= chosen->Share;
        ++chosen;
    }
    hands->Ready();
    ++counts[chosen->Name];
    done << QString(chosen->Name);
    const QString what = (this->*chosen->Do)();
    done.back() += ": " + what + " (then " + hands->Focus() + " has the focus)";
    if (done.size() > RememberedActions)
    {
        done.pop_front();
    }
    Expect({});
    Compare();
}

void User::CloseCharts()
{
    hands->Ready();
    CloseAll();
    // The picture of the main window takes as much as the window is large.
    hands->main->resize(1010, 700);
    Settle();
    Compare();
}

int User::Lot(int count)
{
    return std::uniform_int_distribution<int>(0, count - 1)(random);
}

/// The boxes shown since the last time were exactly these.
void User::Expect(const QStringList& told)
{
    found.Same("what was told", hands->TakeTold(), told);
}

CodeView User::View() const
{
    return code == 0 ? CodeView::Eia : CodeView::Jis;
}

bool User::ChartIsActive() const
{
    return qobject_cast<frmGraph*>(hands->Area()->currentSubWindow()) != nullptr;
}

/// Clicks an entry of the menus that are in place.
void User::ChooseEither(const QString& inChart, const QString& inMain)
{
    hands->Choose(ChartIsActive() ? inChart : inMain);
    hands->Ready();
}
