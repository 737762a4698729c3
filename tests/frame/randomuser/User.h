#pragma once

/// A user who does anything at any time on the real main window, beside the plain model of form and charts.

#include "tests/frame/randomuser/Findings.h"
#include "tests/frame/randomuser/Hands.h"
#include "tests/frame/randomuser/PlainCharts.h"
#include "tests/frame/randomuser/PlainForm.h"

#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <optional>
#include <random>

class QMdiSubWindow;

class User
{
public:
    explicit User(unsigned seed);
    ~User();

    /// Does something, valid or not, and notes what differs from the model afterwards.
    void Act();
    /// Closes every chart window and gives the main window its first size, so that what is left in memory can
    /// be compared.
    void CloseCharts();

    const Findings& Differences() const { return found; }
    /// The last actions, the latest last.
    const QStringList& LastActions() const { return done; }
    /// How often each kind of action was done.
    const QMap<QString, int>& Counts() const { return counts; }

private:
    using Action = QString (User::*)();
    struct Choice
    {
        int Share;
        const char* Name;
        Action Do;
    };
    static const std::vector<Choice>& Choices();

    // The selection form: UserSelection.cpp.
    QString ClickChartType();
    QString StepChartType();
    QString PickFromList();
    QString StepThroughParts();
    QString TypePart();
    QString ClickParameter();
    QString TypeCondition();
    QString TypeAllConditions();
    QString LeaveByKey();
    QString GoByAccessKey();

    // Plotting: UserPlot.cpp.
    QString PlotByMouse();
    QString PlotByKey();
    QString PlotByAccessKey();
    QString PlotByEnter();
    QString PlotSomething();

    // Windows and menus: UserWindows.cpp.
    QString Activate();
    QString CloseOne();
    QString MinimiseOrRestore();
    QString DoubleClick();
    QString Drag();
    QString SwitchCode();
    QString SwitchNumbering();
    QString Reset();
    QString CloseAll();
    QString LookIntoMenus();
    QString ResizeMain();
    QString Restart();

    // Ranges and read-out: UserChart.cpp.
    QString SetRange();
    QString Point();
    QString Copy();

    // Output and help: UserOutput.cpp.
    QString Save();
    QString PrintData();
    QString PrintChart();
    QString SetUpPage();
    QString About();
    QString Help();

    // Shared by the actions.
    int Lot(int count);
    template <class List> auto AnyOf(const List& list) { return list[Lot(static_cast<int>(list.size()))]; }
    bool Chance(int percent) { return Lot(100) < percent; }
    void Expect(const QStringList& told);
    QString BoxWithFocus() const;
    std::optional<QString> RefusalOnLeaving(const QString& target, bool byClick) const;
    bool GoTo(const QString& control, bool byClick);
    QString TypeInto(const QString& box);
    QString EntryFor(const QString& box);
    void PickEntry(const QString& list, int row);
    bool ChecksPass();
    std::optional<PlainLine> LineUnlessRefused(const ChartRecord& asked);
    void Plot();
    void ShowLine(const PlainLine& line);
    AxisRange Defaults(const QString& caption) const;
    ChartRecord LineOf(const QString& caption) const;
    PlainWindow* AnyWindow();
    frmGraph* Shown(const PlainWindow& window) const;
    bool ChartIsActive() const;
    QString ChoosePrinter(const std::function<void()>& open, bool opens);
    void TakePrinted(const QString& file);
    void ChooseEither(const QString& inChart, const QString& inMain);
    void Start();
    CodeView View() const;

    // Holding the screen against the model: Comparison.cpp.
    void Compare();
    void CompareLists();
    void CompareForm();
    void CompareHint();
    void CompareCharts();
    void ComparePanes(const frmGraph* chart, const PlainWindow& window);
    void CompareStore();
    void ComparePlaces();
    void CompareMenus();
    void CompareFiles();

    std::mt19937 random;
    QTemporaryDir files;
    std::unique_ptr<Hands> hands;
    std::unique_ptr<PlainForm> form;
    PlainCharts charts;
    int code = 0;
    int numbering = 0;
    /// The files that were saved, with what they held then, and the folder that the next dialog offers.
    QMap<QString, QByteArray> saved;
    QString lastFolder;
    /// Where the printer of the running program prints to, once it is set up.
    QString printFile;

    Findings found;
    QStringList done;
    QMap<QString, int> counts;
    std::size_t comparisons = 0;
    QString comparedLists;
};

/// True where a print server is at hand, and what is printed goes to PDF files. On a computer without a
/// printer every way to print ends with a message.
bool HasPrinters();

/// Names of the upper lists, from the top.
inline const QStringList UpperLists = {"cmbSizeCode", "cmbTcc", "cmbCap", "cmbRatedVol"};
