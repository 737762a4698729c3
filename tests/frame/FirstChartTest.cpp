/// The first steps as the README tells them, taken one by one.

#include "app/mdlPublic.h"
#include "calc/ValueAt.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QRegularExpression>
#include <QTest>

class FirstChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StepsLeadWhereTheySay();
};

/// The section "The first chart".
static QString Steps()
{
    QFile file(TEST_DATA "/../README.md");
    if (!file.open(QIODevice::ReadOnly))
    {
        return {};
    }
    return QString::fromUtf8(file.readAll()).section("## The first chart", 1).section("\n## ", 0, 0);
}

static QStringList AllOf(const QString& text, const char* pattern)
{
    QStringList found;
    for (const auto& match : QRegularExpression(pattern).globalMatch(text))
    {
        found << match.captured(1);
    }
    return found;
}

/// Steps 2 to 4: a part, the conditions, Plot.
static void Plot(Desk& desk, const QString& partNum)
{
    desk.TypePart(partNum);
    QVERIFY(desk.CanPlot());
    // A new choice has emptied the conditions.
    QCOMPARE(desk.Text("txtDCBiasVol") + desk.Text("txtFrequency"), QString());
    QCOMPARE(desk.Text("txtAmbientTemp"), QString("25"));
    QVERIFY(!desk.Text("txtHeatResistance").isEmpty());
    desk.Type("txtDCBiasVol", "12");
    desk.Type("txtFrequency", "300");
    desk.ClickPlot();
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

void FirstChartTest::StepsLeadWhereTheySay()
{
    const QString steps = Steps();
    const QStringList parts = AllOf(steps, "`(KTS\\w+)`");
    const QStringList rises = AllOf(steps, "(\\d\\.\\d) °C");
    QCOMPARE(parts.size(), 2);
    QCOMPARE(rises.size(), 2);
    QVERIFY(steps.contains("Enter 12 ") && steps.contains("300 for the frequency"));

    Desk desk;
    desk.ClickChartType(0);
    for (const QString& part : parts)
    {
        Plot(desk, part);
    }
    QCOMPARE(desk.Charts().size(), std::size_t{1});
    const auto lines = mdlPublic.Charts.Lines();
    QCOMPARE(lines.size(), std::size_t{2});
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        const auto& part = mdlPublic.Parts.PartData[static_cast<std::size_t>(lines[i].PartDataIndex)];
        const auto rise = ValueAt(part, lines[i], 1.5, CodeView::Eia);
        QVERIFY(rise.has_value());
        QCOMPARE(QString::number(*rise, 'f', 1), rises[static_cast<qsizetype>(i)]);
    }
}

QTEST_MAIN(FirstChartTest)
#include "FirstChartTest.moc"
