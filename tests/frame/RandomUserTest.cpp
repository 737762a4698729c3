/// A user who does anything at any time, held against a plain model of windows and store.

#include "app/Twips.h"
#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <random>

#include <sys/stat.h>

class RandomUserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WindowsAndStoreFollowThePlainModel_data();
    void WindowsAndStoreFollowThePlainModel();
};

/// A line as the user asked for it.
struct AskedLine
{
    QString caption;
    std::size_t part = 0;
    /// All conditions as typed, one after the other.
    QString conditions;

    bool operator==(const AskedLine&) const = default;
};

/// What should be on the screen.
struct Model
{
    std::vector<AskedLine> lines;
    /// Captions in the order of opening, and where each window was last put.
    std::vector<QString> windows;
    std::vector<int> tops;
    int code = 0;
    int numbering = 0;

    int LinesOf(const QString& caption) const
    {
        return static_cast<int>(
            std::ranges::count_if(lines, [&](const AskedLine& line) { return line.caption == caption; }));
    }

    /// 300 twips for each window beside the first, and 50.
    int TopNow() const { return static_cast<int>((windows.size() - 1) * 300 + 50) / 15; }

    void Plot(const AskedLine& line)
    {
        lines.push_back(line);
        const auto at = std::ranges::find(windows, line.caption);
        if (at == windows.end())
        {
            windows.push_back(line.caption);
            tops.push_back(TopNow());
            return;
        }
        tops[static_cast<std::size_t>(at - windows.begin())] = TopNow();
    }

    void Close(std::size_t window)
    {
        const QString caption = windows[window];
        std::erase_if(lines, [&](const AskedLine& line) { return line.caption == caption; });
        windows.erase(windows.begin() + static_cast<std::ptrdiff_t>(window));
        tops.erase(tops.begin() + static_cast<std::ptrdiff_t>(window));
    }

    void CloseAll()
    {
        lines.clear();
        windows.clear();
        tops.clear();
    }
};

static const std::array<const char*, 4> Titles = {"Temperature Rise Characteristics", "Allowable power",
                                                  "Capacitance-Temperature Characteristics",
                                                  "Capacitance-DC Voltage Characteristics"};

static QString NumberOf(std::size_t part, int form)
{
    const auto text = mdlPublic.Parts.PartData[part].PartNum[static_cast<std::size_t>(form)];
    return QString::fromLatin1(text.data(), text.size());
}

/// One session: what the user does next is drawn by lot.
class Session
{
public:
    explicit Session(unsigned seed)
        : random(seed)
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, files.filePath("settings"));
    }

    void Step()
    {
        const int lot = Lot(26);
        if (lot < 11)
        {
            PlotSomething();
        }
        else if (lot < 13)
        {
            PlotAgain();
        }
        else if (lot < 15)
        {
            CloseOne();
        }
        else if (lot < 16)
        {
            MinimiseOne();
        }
        else if (lot < 18)
        {
            Choose(QStringLiteral("mnuPartNum_%1").arg(model.numbering = Lot(2)));
        }
        else if (lot == 18)
        {
            SwitchCode();
        }
        else if (lot == 19)
        {
            ResetOrCloseAll();
        }
        else
        {
            OutputSomething();
        }
    }

    void Verify()
    {
        const ChartStore& store = mdlPublic.Charts;
        QCOMPARE(static_cast<std::size_t>(store.CurrentChart), model.lines.size());
        QVERIFY(StoreIsWhole());
        QVERIFY(IsAtRest());
        QCOMPARE(desk.main->OpenForms(), static_cast<int>(model.windows.size()) + 2);
        for (std::size_t i = 0; i < model.lines.size(); ++i)
        {
            QCOMPARE(static_cast<std::size_t>(store.ChartData[i].PartDataIndex), model.lines[i].part);
        }
        const auto charts = desk.Charts();
        QCOMPARE(charts.size(), model.windows.size());
        for (std::size_t i = 0; i < charts.size(); ++i)
        {
            VerifyChart(charts[i], i);
        }
        const auto boxes = desk.TakeBoxes();
        QVERIFY2(boxes.empty(), boxes.empty() ? "" : qPrintable(boxes.front().text));
    }

private:
    int Lot(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }

    int Form() const { return model.code + 2 * model.numbering; }

    void VerifyChart(const frmGraph* chart, std::size_t i)
    {
        QCOMPARE(chart->windowTitle(), model.windows[i]);
        if (!chart->isMinimized())
        {
            QCOMPARE(chart->geometry(), QRect(200, model.tops[i], 733, 295));
        }
        int pane = 0;
        for (const AskedLine& line : model.lines)
        {
            if (line.caption == model.windows[i])
            {
                QCOMPARE(PaneOf(chart, pane++), NumberOf(line.part, Form()));
            }
        }
        if (pane < 6)
        {
            QCOMPARE(PaneOf(chart, pane), QString());
        }
    }

    static QString PaneOf(const frmGraph* chart, int pane)
    {
        return chart->findChild<QLabel*>(QStringLiteral("lblStatus_%1").arg(pane))->text();
    }

    QString PickAny(const QString& list)
    {
        auto* box = desk.Find<QComboBox>(list);
        const QString name = box->itemText(Lot(box->count()));
        list == "cmbXaxis" ? desk.PickXAxis(name) : desk.PickYAxis(name);
        return name;
    }

    /// A condition out of a few, so that lines meet again.
    QString TypeAny(const QString& box, const QStringList& values)
    {
        const QString value = values[Lot(static_cast<int>(values.size()))];
        desk.Type(box, value);
        return value + "|";
    }

    void PlotSomething()
    {
        const int type = Lot(4);
        desk.ClickChartType(type);
        const QString x = PickAny("cmbXaxis");
        const QString y = PickAny("cmbYaxis");
        asked.caption = QStringLiteral("%1(%2,%3)").arg(Titles[static_cast<std::size_t>(type)], x, y);
        const auto* parts = desk.Find<QComboBox>("cmbPartNum");
        const QString number = parts->itemText(Lot(std::min(parts->count(), 8)) * parts->count() / 8);
        asked.part = 0;
        while (NumberOf(asked.part, Form()) != number)
        {
            ++asked.part;
        }
        desk.TypePart(number);
        QVERIFY(desk.CanPlot());
        TypeConditions(type, x);
        Plot(x == "Frequency" && type == 0 && asked.conditions.endsWith("1E9|"));
    }

    void TypeConditions(int type, const QString& x)
    {
        asked.conditions.clear();
        if (type != 3)
        {
            asked.conditions += TypeAny("txtDCBiasVol", {"0", "1"});
        }
        if (type != 2)
        {
            asked.conditions += TypeAny("txtAmbientTemp", {"30", "40"});
        }
        if (type == 0 && x != "Frequency")
        {
            asked.conditions += TypeAny("txtFrequency", {"100", "200"});
        }
        if (type == 0 && x == "Frequency")
        {
            const int parameter = Lot(4);
            desk.ClickParameter(parameter);
            asked.conditions += QString::number(parameter) + "|";
            asked.conditions += TypeAny("txtParameter", {"0", "0.00001", "1E9"});
        }
    }

    void PlotAgain()
    {
        if (desk.CanPlot() && !asked.caption.isEmpty())
        {
            Plot(asked.caption.contains("(Frequency,Temperature") && asked.conditions.endsWith("1E9|"));
        }
    }

    /// Plots what was asked for, and holds the answer against the model.
    void Plot(bool overLimit)
    {
        desk.ClickPlot();
        if (std::ranges::find(model.lines, asked) != model.lines.end())
        {
            QCOMPARE(desk.TakeText(), QString("This Chart is already opened!"));
        }
        else if (model.LinesOf(asked.caption) == 6)
        {
            QCOMPARE(desk.TakeText(), QString("Maximum Numbers of this Chart Type open!"));
        }
        else if (overLimit)
        {
            QCOMPARE(desk.TakeBoxes().size(), std::size_t{1});
            QVERIFY(desk.HasFocus("txtParameter"));
        }
        else
        {
            model.Plot(asked);
            const auto* chart = desk.Chart(asked.caption);
            QVERIFY(chart != nullptr && !chart->isMinimized());
            QCOMPARE(desk.Area()->activeSubWindow(), chart);
        }
    }

    void CloseOne()
    {
        if (!model.windows.empty())
        {
            const auto window = static_cast<std::size_t>(Lot(static_cast<int>(model.windows.size())));
            desk.Charts()[window]->close();
            Settle();
            model.Close(window);
        }
    }

    void MinimiseOne()
    {
        if (!model.windows.empty())
        {
            const auto window = static_cast<std::size_t>(Lot(static_cast<int>(model.windows.size())));
            desk.Charts()[window]->showMinimized();
            Settle();
        }
    }

    /// Chooses from the main window's menus.
    void Choose(const QString& entry)
    {
        desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
        desk.Choose(entry);
    }

    void SwitchCode()
    {
        const int code = Lot(2);
        Choose(QStringLiteral("mnuViewCode_%1").arg(code));
        if (code != std::exchange(model.code, code))
        {
            // What is typed into the ambient box goes back to the reference temperature.
            asked.caption.clear();
            if (!model.windows.empty())
            {
                QCOMPARE(desk.TakeText(), QString("Close all chart windows"));
            }
            model.CloseAll();
        }
    }

    void ResetOrCloseAll()
    {
        if (Lot(2) == 0)
        {
            Choose("mnuResetSelction");
            QVERIFY(!desk.CanPlot());
        }
        else
        {
            Choose("mnuCloseAllChartWindows");
            model.CloseAll();
        }
    }

    /// Saves, prints without a printer, copies or sets ranges. Whatever comes of it, no line comes or goes.
    void OutputSomething()
    {
        desk.AnswerBy(std::array{QMessageBox::NoButton, QMessageBox::Yes,
                                 QMessageBox::Cancel}[static_cast<std::size_t>(Lot(3))]);
        QApplication::setActiveWindow(desk.main.get());
        switch (Lot(6))
        {
        case 0:
            desk.SaveAs("");
            break;
        case 1:
            desk.SaveAs(files.filePath(QString::number(Lot(3))));
            break;
        case 2:
            // No file takes the place of a pipe.
            mkfifo(QFile::encodeName(files.filePath("pipe")).constData(), 0600);
            desk.SaveAs(files.filePath("pipe"));
            break;
        case 3:
            desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
            [[fallthrough]];
        case 4:
            QTest::keyClick(desk.main.get(), Qt::Key_P, Qt::ControlModifier);
            break;
        default:
            SetAnyRange();
            break;
        }
        Settle();
        desk.AnswerBy(QMessageBox::NoButton);
        VerifyBoxesOfOutput();
    }

    void SetAnyRange()
    {
        const auto charts = desk.Charts();
        if (!charts.empty())
        {
            frmGraph* chart = charts[static_cast<std::size_t>(Lot(static_cast<int>(charts.size())))];
            const AxisRange& range = chart->Range();
            chart->WriteMagnification(range.XMax, range.YMax, range.XMin, range.YMin, Lot(3) == 0 ? 1 : 0);
            const auto at = std::ranges::find(model.windows, chart->windowTitle());
            auto& top = model.tops[static_cast<std::size_t>(at - model.windows.begin())];
            top = chart->y();
        }
    }

    void VerifyBoxesOfOutput()
    {
        for (const Said& box : desk.TakeBoxes())
        {
            const bool printing = box.text.startsWith("Would you print ") ||
                                  box.text == "Unexpected Error 65534\nThere is no printer in this system.";
            const bool saving = box.text.startsWith("tavik Data saved to ") ||
                                box.text.contains("already exists") ||
                                box.text == "Unexpected Error 75\nPath/File access error" ||
                                box.text == "Unexpected Error 70\nPermission denied";
            // A refused entry is told without plotting, too.
            QVERIFY2(printing || saving || box.icon == QMessageBox::Warning, qPrintable(box.text));
            QVERIFY2(box.text != "This Chart is already opened!", qPrintable(box.text));
        }
    }

    QTemporaryDir files;
    std::mt19937 random;
    Desk desk;
    Model model;
    AskedLine asked;
};

void RandomUserTest::WindowsAndStoreFollowThePlainModel_data()
{
    QTest::addColumn<unsigned>("seed");
    QTest::newRow("first user") << 1U;
    QTest::newRow("second user") << 20U;
    QTest::newRow("third user") << 300U;
}

void RandomUserTest::WindowsAndStoreFollowThePlainModel()
{
    QFETCH(unsigned, seed);
    Session session(seed);
    for (int step = 0; step < 700; ++step)
    {
        session.Step();
        session.Verify();
        if (QTest::currentTestFailed())
        {
            qWarning("in step %d", step);
            return;
        }
    }
}

QTEST_MAIN(RandomUserTest)
#include "RandomUserTest.moc"
