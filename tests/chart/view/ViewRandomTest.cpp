/// A random user on a chart view, its chart window and the selection form together, held after each action
/// against a plain model of what the view is to show.
///
/// The short run is always the same. From the environment:
///   TAVIK_TEST_SEED      another user
///   RANDOM_VIEW_ACTIONS  how much the user does

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "chart/layout/AxisLimits.h"
#include "tests/Seed.h"
#include "tests/chart/view/PlainView.h"
#include "tests/chart/view/ViewDesk.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>

#include <random>

using Kind = ViewDesk::Kind;

/// One user at one desk.
class RandomViewer
{
public:
    explicit RandomViewer(unsigned seed)
        : random(seed)
        , desk(Kind::RiseOverFrequency, 1)
    {
        Settle();
        Begin();
    }

    /// Does something, and names it.
    QString Act();
    /// What is wrong after it; empty where nothing is.
    QString Difference() const;

private:
    int Number(int from, int to) { return std::uniform_int_distribution(from, to)(random); }
    bool Chance(int inHowMany) { return Number(1, inHowMany) == 1; }
    frmChartView* View() const { return desk.View(); }
    const ViewScene& Scene() const { return View()->Scene(); }

    void Begin();
    QString ActOnChart();
    QString ActOnForm();
    int LineInRow(int below) const;
    QString PressKey();
    QString TypeX();
    QString UsePointer();
    QString ChangeRange();
    QString SortTable();
    void TakeConditions(const ChartRecord& line);
    std::vector<ChartRecord> Lines() const;
    bool IsPermitted(const AxisRange& range) const;

    std::mt19937 random;
    ViewDesk desk;
    PlainView plain;
    QString wrong;
};

/// A view that has just been opened: A alone, the chart's range, nothing chosen.
void RandomViewer::Begin()
{
    plain = {.Cursors = {.Pinned = {}, .Free = Scene().Cursors.A()},
             .Chosen = {},
             .Range = desk.Chart()->Range(),
             .Dashed = plain.Dashed};
    const AxisRange& range = plain.Range;
    if (plain.Cursors.Free < range.XMin || plain.Cursors.Free > range.XMax)
    {
        wrong = QStringLiteral("A begins outside");
    }
}

std::vector<ChartRecord> RandomViewer::Lines() const
{
    std::vector<ChartRecord> lines;
    for (const ChartRecord& line : mdlPublic.Charts.Lines())
    {
        if (KeyOf(line) == desk.Chart()->Chart())
        {
            lines.push_back(line);
        }
    }
    return lines;
}

bool RandomViewer::IsPermitted(const AxisRange& range) const
{
    const AxisRange whole = WholeRange(Scene().Lines);
    const auto x = PermittedXRange(Scene().View.Chart, whole);
    const auto y = PermittedYRange(Scene().View.Chart, whole);
    return range.XMin < range.XMax && range.YMin < range.YMax && x.Contains(range.XMin / 1000) &&
           x.Contains(range.XMax / 1000) && y.Contains(range.YMin) && y.Contains(range.YMax);
}

QString RandomViewer::Act()
{
    wrong.clear();
    switch (Number(0, 11))
    {
    case 0:
        return ActOnForm();
    case 1:
        return ActOnChart();
    case 2:
    case 3:
        return UsePointer();
    case 4:
        return ChangeRange();
    case 5:
        return TypeX();
    case 6:
        return SortTable();
    default:
        return PressKey();
    }
}

// ---- The form and the chart window ----

/// Conditions that a line gives to the boxes: what the form shows afterwards is what the line was plotted at.
void RandomViewer::TakeConditions(const ChartRecord& line)
{
    const bool same = desk.desk.Text("txtDCBiasVol").toFloat() == line.DCBiasVoltage &&
                      desk.desk.Text("txtAmbientTemp").toFloat() == line.AmbientTemp &&
                      desk.desk.Text("txtParameter").toFloat() == line.ParameterValue;
    wrong += same ? QString()
                  : QStringLiteral("conditions %1 %2 %3, not %4 %5 %6")
                        .arg(desk.desk.Text("txtDCBiasVol"), desk.desk.Text("txtAmbientTemp"),
                             desk.desk.Text("txtParameter"))
                        .arg(line.DCBiasVoltage)
                        .arg(line.AmbientTemp)
                        .arg(line.ParameterValue);
}

QString RandomViewer::ActOnForm()
{
    if (Chance(3))
    {
        QApplication::setActiveWindow(desk.desk.main.get());
        QTest::keyClick(desk.desk.Find<QLineEdit>("txtDCBiasVol"), Qt::Key_F4);
        TakeConditions(Lines().back());
        return QStringLiteral("F4 on the form");
    }
    const bool follows =
        Scene().View.Range == desk.Chart()->Range() || Scene().View.Range == WholeRange(Scene().Lines);
    const AxisRange former = desk.Chart()->Range();
    desk.desk.TypePart(ListedPart(desk.desk, Number(200, 400)));
    desk.desk.Type("txtDCBiasVol", QString::number(Number(0, 4)));
    desk.desk.Type("txtParameter", QString::number(Number(1, 20) / 100.0));
    desk.desk.ClickPlot();
    desk.desk.TakeBoxes();
    if (follows && desk.Chart()->Range() != former)
    {
        plain.Range = desk.Chart()->Range();
    }
    return QStringLiteral("Plot");
}

QString RandomViewer::ActOnChart()
{
    switch (Number(0, 3))
    {
    case 0:
        View()->close();
        Settle();
        desk.Open();
        Begin();
        return QStringLiteral("closed and opened again");
    case 1:
        desk.desk.main->mnuPartNum_Click(Number(0, 1));
        return QStringLiteral("other part numbers");
    case 2:
        if (!Chance(4))
        {
            return QStringLiteral("nothing");
        }
        desk.desk.main->mnuViewCode_Click(Number(0, 1));
        desk.desk.TakeBoxes();
        if (desk.desk.Charts().empty())
        {
            wrong = View() != nullptr ? QStringLiteral("a view without its chart") : QString();
            desk.PlotLine(Number(0, 5));
            desk.Open();
            Begin();
        }
        return QStringLiteral("other code");
    default:
        const AxisRange whole = WholeRange(Scene().Lines);
        const AxisRange set = {whole.XMax, whole.YMax, whole.XMax / static_cast<float>(Number(2, 9)),
                               whole.YMin};
        const bool changes = set != desk.Chart()->Range();
        desk.Chart()->WriteMagnification(set.XMax, set.YMax, set.XMin, set.YMin);
        plain.Range = changes ? set : plain.Range;
        return QStringLiteral("range of the chart window");
    }
}

// ---- The view ----

/// The line in the row so many below the chosen one, in the order that the table stands in.
int RandomViewer::LineInRow(int below) const
{
    const int row = (plain.Chosen ? desk.Model()->RowOf(*plain.Chosen) : 0) + below;
    return desk.Model()->LineOf(std::clamp(row, 0, desk.Model()->rowCount() - 1));
}

QString RandomViewer::PressKey()
{
    const int points = Chance(3) ? 10 : 1;
    const auto shift = points == 10 ? Qt::ShiftModifier : Qt::NoModifier;
    const ChartRecord& line = Scene().Lines[static_cast<std::size_t>(plain.Chosen.value_or(0))].Line;
    desk.Canvas()->setFocus();
    switch (Number(0, 9))
    {
    case 0:
    case 1:
        plain.Cursors.MoveTo(PointsAway(line, plain.Cursors.Moving(), points));
        desk.Press(Qt::Key_Right, shift);
        return QStringLiteral("Right %1").arg(points);
    case 2:
        plain.Cursors.MoveTo(PointsAway(line, plain.Cursors.Moving(), -points));
        desk.Press(Qt::Key_Left, shift);
        return QStringLiteral("Left %1").arg(points);
    case 3:
        plain.Cursors.MoveTo(line.XData.back());
        desk.Press(Qt::Key_End);
        return QStringLiteral("End");
    case 4:
        plain.Cursors.Pin(plain.Cursors.Moving());
        desk.Press(Chance(2) ? Qt::Key_Return : Qt::Key_Space);
        return QStringLiteral("pin");
    case 5:
        if (plain.Cursors.Unpin())
        {
            desk.Press(Qt::Key_Escape);
        }
        return QStringLiteral("Esc");
    case 6:
        plain.Chosen = LineInRow(plain.Chosen ? 1 : 0);
        desk.Press(Qt::Key_Down);
        return QStringLiteral("Down");
    case 7:
        plain.Chosen = LineInRow(plain.Chosen ? -1 : 0);
        desk.Press(Qt::Key_Up);
        return QStringLiteral("Up");
    case 8:
        desk.Press(Qt::Key_F4);
        TakeConditions(line);
        return QStringLiteral("F4");
    default:
        plain.Dashed = !plain.Dashed;
        desk.Press(Qt::Key_F6);
        desk.Press(Chance(2) ? Qt::Key_F7 : Qt::Key_F8);
        return QStringLiteral("looks");
    }
}

QString RandomViewer::TypeX()
{
    desk.Canvas()->setFocus();
    const int kiloHertz = Number(1, 1100);
    desk.TypeText(QString::number(kiloHertz));
    if (Chance(5))
    {
        desk.Press(Qt::Key_Escape);
        return QStringLiteral("typed and left");
    }
    desk.Press(Qt::Key_Return);
    if (kiloHertz < 10 || kiloHertz > 1000)
    {
        desk.Press(Qt::Key_Escape);
        return QStringLiteral("typed too much");
    }
    plain.Cursors.Jump(kiloHertz * 1000.0);
    return QStringLiteral("typed %1").arg(kiloHertz);
}

QString RandomViewer::UsePointer()
{
    const QPoint place = desk.At(Number(1, 99), Number(1, 99));
    const FittingChart& chart = desk.Canvas()->Chart();
    const double least = chart.XAt(place.x() - 0.51);
    const double most = chart.XAt(place.x() + 0.51);
    desk.MoveTo(place);
    const double x = Scene().Cursors.Moving();
    if (plain.Cursors.Pinned.size() < 2)
    {
        wrong = x < least || x > most ? QStringLiteral("pointer") : QString();
        plain.Cursors.Follow(x);
    }
    if (Chance(3))
    {
        const bool frees = plain.Cursors.Pinned.size() == 2;
        QTest::mouseClick(desk.Canvas(), Qt::LeftButton, {}, place);
        plain.Cursors.Pin(frees ? Scene().Cursors.Moving() : x);
        return QStringLiteral("click");
    }
    return QStringLiteral("pointer");
}

QString RandomViewer::ChangeRange()
{
    const QPoint place = desk.At(Number(-5, 105), Number(-5, 105));
    switch (Number(0, 4))
    {
    case 0:
        desk.Canvas()->setFocus();
        desk.Press(Qt::Key_0, Qt::ControlModifier);
        plain.Range = WholeRange(Scene().Lines);
        return QStringLiteral("default range");
    case 1:
        desk.Press(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        wrong = desk.Chart()->Range() == plain.Range ? QString() : QStringLiteral("the chart window's range");
        return QStringLiteral("range to the chart window");
    case 2:
        desk.Drag(place, place + QPoint(Number(50, 200), Number(-200, -50)));
        break;
    default:
        desk.Turn(place, Number(-4, 4));
    }
    wrong = IsPermitted(Scene().View.Range) ? QString() : QStringLiteral("a range that is not permitted");
    plain.Range = Scene().View.Range;
    return QStringLiteral("wheel or drag");
}

QString RandomViewer::SortTable()
{
    const QHeaderView* const heads = desk.Table()->horizontalHeader();
    const int column = 2;
    const QPoint place(heads->sectionViewportPosition(column) + 5, heads->height() / 2);
    QTest::mouseClick(heads->viewport(), Qt::LeftButton, {}, place);
    plain.Order = (plain.Order + 1) % 3;
    return QStringLiteral("sort");
}

QString RandomViewer::Difference() const
{
    return wrong + (View() == nullptr ? QStringLiteral("no view") : DifferenceOf(*View(), plain, Lines()));
}

class ViewRandomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EverythingFollowsThePlainModel()
    {
        static constexpr int ShortRun = 300;
        bool given = false;
        const int wanted = qEnvironmentVariableIntValue("RANDOM_VIEW_ACTIONS", &given);
        RandomViewer user(TestSeed(11));
        QStringList done;
        for (int action = 1; action <= (given ? wanted : ShortRun); ++action)
        {
            done << user.Act();
            Settle();
            const QString difference = user.Difference();
            QVERIFY2(difference.isEmpty(),
                     qPrintable(QStringLiteral("action %1: %2\nafter %3")
                                    .arg(action)
                                    .arg(difference, done.mid(done.size() - 12).join(QStringLiteral(", ")))));
        }
    }
};

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsSet("RANDOM_VIEW_ACTIONS"))
    {
        // Many actions take longer than tests are given as a rule.
        qputenv("QTEST_FUNCTION_TIMEOUT", "86400000");
    }
    QApplication application(argc, argv);
    ViewRandomTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ViewRandomTest.moc"
