/// What is offered with a chosen part: Plot, the output commands of the main window, and the frequency
/// of a temperature rise agree at every moment.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTest>

#include <random>

class PlotOfferTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AgreesOnAWalkThroughTheSelection();

private:
    static constexpr unsigned Seed = 20;
    static constexpr int Steps = 600;

    int Number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random); }
    QString Step(Desk& desk);
    QString PickAny(const Desk& desk, const char* list);
    QString TypePart(Desk& desk);
    void CompareOutput(const Desk& desk) const;
    void CompareFrequency(Desk& desk);

    std::mt19937 random{Seed};
    int chosen = 0;
};

/// Picks a random entry of a list, where it has any.
QString PlotOfferTest::PickAny(const Desk& desk, const char* list)
{
    auto* box = desk.Find<QComboBox>(list);
    if (box->count() > 0)
    {
        box->setCurrentIndex(Number(box->count()));
        Q_EMIT box->activated(box->currentIndex());
    }
    return QString(list) + " " + box->currentText();
}

/// A part that is offered, whole or not to its end.
QString PlotOfferTest::TypePart(Desk& desk)
{
    auto* box = desk.Find<QComboBox>("cmbPartNum");
    QString number = box->count() > 0 ? box->itemText(Number(box->count())) : QString("none");
    if (Number(2) == 0)
    {
        number.chop(1);
    }
    desk.TypePart(number);
    return "type " + number;
}

QString PlotOfferTest::Step(Desk& desk)
{
    static constexpr std::array<const char*, 7> Lists = {
        "cmbSizeCode", "cmbTcc", "cmbCap", "cmbRatedVol", "cmbRatedVol", "cmbPartNum", "cmbXaxis"};
    const int step = Number(16);
    switch (step)
    {
    case 0:
        desk.ClickChartType(0);
        return "chart type 0";
    case 1:
        desk.ClickChartType(Number(4));
        return "a chart type";
    case 2:
        desk.Choose(QStringLiteral("mnuViewCode_%1").arg(Number(2)));
        return "a code";
    case 3:
        desk.Choose(QStringLiteral("mnuPartNum_%1").arg(Number(2)));
        return "a numbering";
    case 4:
        desk.Choose("mnuResetSelction");
        return "reset";
    case 5:
    case 6:
        return TypePart(desk);
    default:
        return PickAny(desk, Lists[static_cast<std::size_t>(step) % Lists.size()]);
    }
}

/// Opens the File menu.
void PlotOfferTest::CompareOutput(const Desk& desk) const
{
    const bool plot = desk.CanPlot();
    QCOMPARE(desk.main->CanPlot(), plot);
    Q_EMIT desk.Find<QMenu>("mnuFile")->aboutToShow();
    QCOMPARE(desk.Find<QMenu>("mnuOutPut")->isEnabled(), plot);
}

/// Picks the X axis once more: the frequency is open just where a part is chosen and X is a load.
void PlotOfferTest::CompareFrequency(Desk& desk)
{
    if (!desk.Find<QRadioButton>("optChartType_0")->isChecked())
    {
        return;
    }
    auto* axis = desk.Find<QComboBox>("cmbXaxis");
    Q_EMIT axis->activated(axis->currentIndex());
    const bool frequency = axis->currentText() == "Frequency";
    QCOMPARE(desk.Find<QLineEdit>("txtFrequency")->isEnabled(), desk.CanPlot() && !frequency);
    QCOMPARE(desk.Find<QLineEdit>("txtParameter")->isEnabled(), frequency);
}

void PlotOfferTest::AgreesOnAWalkThroughTheSelection()
{
    Desk desk;
    for (int i = 0; i < Steps && !QTest::currentTestFailed(); ++i)
    {
        const QString step = Step(desk);
        CompareOutput(desk);
        CompareFrequency(desk);
        CompareOutput(desk);
        chosen += desk.CanPlot() ? 1 : 0;
        if (QTest::currentTestFailed())
        {
            qWarning("seed %u, after step %d: %s", Seed, i, qPrintable(step));
        }
    }
    // The walk has seen both.
    QVERIFY2(chosen > Steps / 10 && chosen < Steps * 9 / 10, qPrintable(QString::number(chosen)));
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

QTEST_MAIN(PlotOfferTest)
#include "PlotOfferTest.moc"
