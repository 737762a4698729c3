/// How the dialog for the axis ranges of a chart looks and is walked through.

#include "tests/chart/forms/AxisDialog.h"

#include "chart/ChartPicture.h"
#include "chart/frmGraph.h"
#include "formkit/WindowFrame.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

class AxisDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StartsWithTheRangesInForce();
    void ShowsFrequenciesInKilohertz();
    void UnitsStandBehindTheBoxes_data();
    void UnitsStandBehindTheBoxes();
    void BothFramesHaveTheSameLabels();
    void IsCentredOverTheMainWindow();
    void IsCentredWithItsFrame();
    void BoxesStandInLine_data();
    void BoxesStandInLine();
    void BoxesSelectTheirTextByKey();
    void BoxesSelectTheirTextByMouse();
    void AccessKeysLeadToTheBoxes();
    void CancelChangesNothing_data();
    void CancelChangesNothing();
};

void AxisDialogTest::StartsWithTheRangesInForce()
{
    Desk desk;
    frmGraph* chart = PlotCapacitance(desk);
    chart->WriteMagnification(100.5F, 12, -20, -30.25F);
    InDialog(desk,
             [](QDialog& dialog) {
                 QCOMPARE(Boxes(dialog), QStringList({"-20", "100.5", "-30.25", "12"}));
             });
}

void AxisDialogTest::ShowsFrequenciesInKilohertz()
{
    Desk desk;
    QVERIFY(PlotKind(desk, 0, "Frequency", "Temperature Rise") != nullptr);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 QCOMPARE(Box(dialog, "txtX_0")->text(), QString("10"));
                 QCOMPARE(Box(dialog, "txtX_1")->text(), QString("1000"));
             });
}

void AxisDialogTest::UnitsStandBehindTheBoxes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<QString>("xUnit");
    QTest::addColumn<QString>("yUnit");
    const QString degrees = QString::fromUtf8("[°C]");
    QTest::newRow("rise") << 0 << "Current"
                          << "Temperature Rise"
                          << "[Arms]" << degrees;
    QTest::newRow("rise over frequency") << 0 << "Frequency"
                                         << "Temperature Rise"
                                         << "[kHz]" << degrees;
    QTest::newRow("power") << 1 << "Frequency"
                           << "Apparent Power"
                           << "[kHz]"
                           << "[VA]";
    QTest::newRow("temperature") << 2 << "Temperature"
                                 << "Capacitance" << degrees << "[pF]";
    QTest::newRow("voltage") << 3 << "DC Bias Voltage"
                             << "Capacitance Change"
                             << "[V]"
                             << "[%]";
}

void AxisDialogTest::UnitsStandBehindTheBoxes()
{
    QFETCH(int, type);
    QFETCH(QString, x);
    QFETCH(QString, y);
    QFETCH(QString, xUnit);
    QFETCH(QString, yUnit);
    Desk desk;
    QVERIFY(PlotKind(desk, type, x, y) != nullptr);
    InDialog(desk,
             [&](QDialog& dialog)
             {
                 QCOMPARE(dialog.findChild<QLabel*>("lblXunit")->text(), xUnit);
                 QCOMPARE(dialog.findChild<QLabel*>("lblYunit")->text(), yUnit);
             });
}

void AxisDialogTest::BothFramesHaveTheSameLabels()
{
    Desk desk;
    QVERIFY(PlotCapacitance(desk) != nullptr);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 for (const auto& [frame, title, boxes] :
                      {std::tuple{"fraXaxis", "X axis", "txtX_%1"}, {"fraYaxis", "Y axis", "txtY_%1"}})
                 {
                     const auto* group = dialog.findChild<QGroupBox*>(frame);
                     QCOMPARE(group->title(), QString(title));
                     const auto* from = group->findChild<QLabel*>("lblFrom");
                     const auto* to = group->findChild<QLabel*>("lblTo");
                     QVERIFY(from != nullptr && to != nullptr);
                     QCOMPARE(from->text().remove('&'), QString("From:"));
                     QCOMPARE(to->text().remove('&'), QString("To:"));
                     QCOMPARE(from->buddy()->objectName(), QString(boxes).arg(0));
                     QCOMPARE(to->buddy()->objectName(), QString(boxes).arg(1));
                 }
                 QCOMPARE(dialog.findChild<QPushButton*>("cmdOK")->text(), QString("OK"));
                 QCOMPARE(dialog.findChild<QPushButton*>("cmdCancel")->text(), QString("Cancel"));
                 QCOMPARE(dialog.font().family(), QString("Arial"));
             });
}

void AxisDialogTest::IsCentredOverTheMainWindow()
{
    Desk desk;
    desk.main->move(40, 30);
    QVERIFY(PlotCapacitance(desk) != nullptr);
    InDialog(desk,
             [&](QDialog& dialog)
             {
                 const QRect over = desk.main->frameGeometry();
                 const QRect own = dialog.frameGeometry();
                 QVERIFY(std::abs(own.x() - over.x() - (over.width() - own.width()) / 2) <= 1);
                 QVERIFY(std::abs(own.y() - over.y() - (over.height() - own.height()) / 2) <= 1);
                 QVERIFY(dialog.isModal());
             });
}

void AxisDialogTest::IsCentredWithItsFrame()
{
    QWidget window;
    window.setGeometry(105, 130, 1000, 600);
    const QSize size(370, 180);
    // Its contents are 600 high, its frame 35 more.
    const QMargins frame(5, 30, 5, 5);
    QCOMPARE(CentredOver(window, size, frame),
             QRect(QPoint(105 + (1000 - 380) / 2 + 5, 130 + (600 - 215) / 2 + 30), size));
    window.show();
    const QMargins own = FrameOf(window);
    QVERIFY(own.top() > 0);
    const QRect outer = window.frameGeometry();
    // Before it is shown, a dialog is reckoned to get the frame that its window has.
    const QRect place = CentredOver(window, size, {});
    QCOMPARE(place, CentredOver(window, size, own));
    const int above = place.marginsAdded(own).top() - outer.top();
    const int below = outer.bottom() - place.marginsAdded(own).bottom();
    QVERIFY(std::abs(above - below) <= 1);
}

void AxisDialogTest::BoxesStandInLine_data()
{
    QTest::addColumn<int>("chartType");
    QTest::newRow("units of different length") << 0;
    QTest::newRow("capacitance") << 2;
}

void AxisDialogTest::BoxesStandInLine()
{
    QFETCH(int, chartType);
    Desk desk;
    chartType == 0 ? desk.PlotRise(0, "25") : desk.PlotCapacitance(ListedPart(desk, 0), "0");
    InDialog(desk,
             [](QDialog& dialog)
             {
                 for (const int index : {0, 1})
                 {
                     const auto* x = Box(dialog, QStringLiteral("txtX_%1").arg(index));
                     const auto* y = Box(dialog, QStringLiteral("txtY_%1").arg(index));
                     QCOMPARE(x->mapTo(&dialog, QPoint()).x(), y->mapTo(&dialog, QPoint()).x());
                     QCOMPARE(x->width(), y->width());
                 }
             });
}

void AxisDialogTest::BoxesSelectTheirTextByKey()
{
    Desk desk;
    QVERIFY(PlotCapacitance(desk) != nullptr);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 for (const char* name : {"txtX_0", "txtX_1", "txtY_0", "txtY_1"})
                 {
                     QCOMPARE(dialog.focusWidget()->objectName(), QString(name));
                     QCOMPARE(Box(dialog, name)->selectedText(), Box(dialog, name)->text());
                     QCOMPARE(Box(dialog, name)->selectionStart(), 0);
                     QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
                 }
                 QCOMPARE(dialog.focusWidget()->objectName(), QString("cmdOK"));
             });
}

void AxisDialogTest::BoxesSelectTheirTextByMouse()
{
    Desk desk;
    QVERIFY(PlotCapacitance(desk) != nullptr);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 for (const char* name : {"txtY_1", "txtX_1", "txtY_0", "txtX_0"})
                 {
                     QTest::mouseClick(Box(dialog, name), Qt::LeftButton);
                     QCoreApplication::processEvents();
                     QCOMPARE(Box(dialog, name)->selectedText(), Box(dialog, name)->text());
                 }
                 // A second click into the same box puts the cursor there.
                 QTest::qWait(QApplication::doubleClickInterval() + 50);
                 QTest::mouseClick(Box(dialog, "txtX_0"), Qt::LeftButton);
                 QCoreApplication::processEvents();
                 QCOMPARE(Box(dialog, "txtX_0")->selectedText(), QString());
             });
}

void AxisDialogTest::AccessKeysLeadToTheBoxes()
{
    Desk desk;
    QVERIFY(PlotCapacitance(desk) != nullptr);
    InDialog(desk,
             [](QDialog& dialog)
             {
                 for (const auto& [key, name] : {std::pair{Qt::Key_T, "txtX_1"},
                                                 {Qt::Key_R, "txtY_0"},
                                                 {Qt::Key_O, "txtY_1"},
                                                 {Qt::Key_F, "txtX_0"}})
                 {
                     QTest::keyClick(dialog.focusWidget(), key, Qt::AltModifier);
                     QCOMPARE(dialog.focusWidget()->objectName(), QString(name));
                     QCOMPARE(Box(dialog, name)->selectedText(), Box(dialog, name)->text());
                 }
             });
}

void AxisDialogTest::CancelChangesNothing_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("Escape") << true;
    QTest::newRow("Cancel") << false;
}

void AxisDialogTest::CancelChangesNothing()
{
    QFETCH(bool, byEscape);
    Desk desk;
    frmGraph* chart = PlotCapacitance(desk);
    chart->move(321, 123);
    const auto before = RangeOf(chart);
    InDialog(desk,
             [&](QDialog& dialog)
             {
                 Fill(dialog, {"0", "10", "not", "2"});
                 if (byEscape)
                 {
                     QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
                 }
                 else
                 {
                     QTest::mouseClick(dialog.findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
                 }
                 QVERIFY(!dialog.isVisible());
             });
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(RangeOf(chart), before);
    QCOMPARE(chart->pos(), QPoint(321, 123));
    QVERIFY(!chart->findChild<ChartPicture*>("picGraph")->View().Rescaled);
}

QTEST_MAIN(AxisDialogTest)
#include "AxisDialogTest.moc"
