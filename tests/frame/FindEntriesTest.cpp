/// What is typed into the window that finds parts: units, ranges, decimal signs, and entries that are
/// refused.

#include "formkit/Edges.h"
#include "tests/frame/FindDesk.h"

#include <QScopeGuard>

class FindEntriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RefusedEntryIsMarkedAndKeepsTheAnswer_data();
    void RefusedEntryIsMarkedAndKeepsTheAnswer();
    void RefusedEntryMovesNoRow();
    void BareCapacitancesAreMicrofarads();
    void RangesAndUnitsAreTaken();
    void RangesBelowTheHeatingDataAreTold();
    void CommaIsReadWhereTheUserWritesOne();
};

void FindEntriesTest::RefusedEntryIsMarkedAndKeepsTheAnswer_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("message");
    QTest::newRow("bias below 0") << "txtFindDCBiasVol"
                                  << "-1"
                                  << "DC Bias Voltage is invalid!";
    QTest::newRow("bias no number") << "txtFindDCBiasVol"
                                    << "12x"
                                    << "is not the unit of a voltage";
    QTest::newRow("ambient no number") << "txtFindAmbientTemp"
                                       << "-"
                                       << "Ambient Temperature is invalid!";
    QTest::newRow("range from above") << "txtFindDCBiasVol"
                                      << "13.2..10.8"
                                      << "the first must not be above the second";
    QTest::newRow("range with an open end") << "txtFindAmbientTemp"
                                            << "20.."
                                            << "an end is left open";
    QTest::newRow("tolerance") << "txtFindTolerance"
                               << "100"
                               << "Tolerance is invalid!";
    QTest::newRow("frequency too low") << "txtFindFrequency"
                                       << "9"
                                       << "Frequency is invalid!";
    QTest::newRow("frequency wanted") << "txtFindCurrent"
                                      << "1.5"
                                      << "Frequency is invalid!";
    QTest::newRow("heat resistance 0") << "txtFindHeatResistance"
                                       << "0"
                                       << "Heat Resistance is invalid!";
    QTest::newRow("least below 0") << "txtFindMinCap"
                                   << "-1"
                                   << "Capacitance is invalid! Please enter a Number from 0 [µF]";
    QTest::newRow("left no number") << "txtFindMinLeft"
                                    << ","
                                    << "Capacitance left is invalid!";
    QTest::newRow("rise above 80") << "txtFindMaxRise"
                                   << "81"
                                   << "Temperature Rise is invalid!";
    QTest::newRow("nominal no number") << "txtFindCap"
                                       << "many"
                                       << "is not a number";
}

void FindEntriesTest::RefusedEntryIsMarkedAndKeepsTheAnswer()
{
    QFETCH(QString, box);
    QFETCH(QString, entry);
    QFETCH(QString, message);
    FindDesk desk;
    desk.Enter("txtFindPartNum", "NB51C226");
    QCOMPARE(desk.Rows(), 1);
    auto* const refused = desk.Control<QLineEdit>(qPrintable(box));
    refused->setText(entry);
    QVERIFY2(desk.Line().contains(message), qPrintable(desk.Line()));
    QVERIFY(!desk.Line().contains('\n'));
    // A current without frequency is refused for the frequency.
    auto* const marked = box == "txtFindCurrent" ? desk.Control<QLineEdit>("txtFindFrequency") : refused;
    QCOMPARE(marked->styleSheet(), RefusedFrame(desk.window->palette()));
    QCOMPARE(marked->accessibleDescription(), desk.Line());
    QCOMPARE(desk.Rows(), 1);
    QCOMPARE(desk.Table()->model()->index(0, 0).data(Qt::ForegroundRole).value<QBrush>(),
             QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text));
    QVERIFY(!desk.Control<QPushButton>("cmdFindPlot")->isEnabled());
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    Grab(desk, "refused");

    refused->setText({});
    QCOMPARE(marked->styleSheet(), QString());
    QCOMPARE(marked->accessibleDescription(), QString());
    QVERIFY(!desk.Table()->model()->index(0, 0).data(Qt::ForegroundRole).isValid());
    QCOMPARE(desk.Line(), QString("1 part fits"));
}

/// From where to where in height all that is above the table stands.
static QList<std::pair<int, int>> RowsOfEntries(const FindDesk& desk)
{
    Settle();
    QList<std::pair<int, int>> rows;
    for (const QWidget* widget : desk.Control<QWidget>("fraFindEntries")->findChildren<QWidget*>())
    {
        const bool isOfList = qobject_cast<const QComboBox*>(widget->parentWidget()) != nullptr;
        if (!isOfList)
        {
            rows << std::pair(widget->y(), widget->height());
        }
    }
    return rows;
}

void FindEntriesTest::RefusedEntryMovesNoRow()
{
    const FindDesk desk;
    const auto rows = RowsOfEntries(desk);
    for (const char* box : {"txtFindCap", "txtFindFrequency", "txtFindMinCap"})
    {
        desk.Enter(box, "no number");
        QCOMPARE(RowsOfEntries(desk), rows);
        desk.Enter(box, "");
        QCOMPARE(RowsOfEntries(desk), rows);
    }
    desk.Pick("cmbFindRatedVol", "no number");
    QCOMPARE(RowsOfEntries(desk), rows);
}

void FindEntriesTest::BareCapacitancesAreMicrofarads()
{
    const FindDesk desk;
    desk.Enter("txtFindCap", "4.7");
    QVERIFY(desk.Rows() > 0);
    const int bare = desk.Rows();
    QCOMPARE(desk.Cell(0, "Nominal"), QString("4.7 µF"));
    desk.Enter("txtFindCap", "4700nF");
    QCOMPARE(desk.Rows(), bare);
    desk.Enter("txtFindCap", "4.7..4.7");
    QCOMPARE(desk.Rows(), bare);
}

void FindEntriesTest::RangesAndUnitsAreTaken()
{
    const FindDesk desk;
    const int all = desk.Rows();
    desk.Pick("cmbFindRatedVol", "16..");
    const int from16 = desk.Rows();
    desk.Pick("cmbFindRatedVol", "..15V");
    QCOMPARE(desk.Rows() + from16, all);
    desk.Pick("cmbFindRatedVol", "");
    QCOMPARE(desk.Rows(), all);
    desk.Enter("txtFindFrequency", "0.3MHz");
    QVERIFY(!desk.Table()->isColumnHidden(desk.Column("Allowed [Arms]")));
}

void FindEntriesTest::RangesBelowTheHeatingDataAreTold()
{
    const FindDesk desk;
    const QString note = "; rise and loads judged from 20 C up, where the heating data begins";
    desk.Enter("txtFindPartNum", NumberOnDisplay("KTS31NB51C226MA01"));
    desk.Enter("txtFindAmbientTemp", "-20..60");
    QCOMPARE(desk.Line(), QString("1 part fits"));
    desk.Enter("txtFindFrequency", "100");
    QCOMPARE(desk.Line(), "1 part fits" + note);
    desk.Enter("txtFindDCBiasVol", "17");
    QCOMPARE(desk.Line(), "No part fits. Left out: 1 bias too high" + note);
    desk.Enter("txtFindAmbientTemp", "20..60");
    QCOMPARE(desk.Line(), QString("No part fits. Left out: 1 bias too high"));
}

void FindEntriesTest::CommaIsReadWhereTheUserWritesOne()
{
    const auto restore = qScopeGuard([former = QLocale()] { QLocale::setDefault(former); });
    const FindDesk desk;
    QLocale::setDefault(QLocale(QLocale::German));
    desk.Enter("txtFindCap", "4,7");
    QVERIFY(desk.Rows() > 0);
    QCOMPARE(desk.Cell(0, "Nominal"), QString("4.7 µF"));
    QLocale::setDefault(QLocale(QLocale::English));
    desk.Enter("txtFindCap", "4,70");
    QVERIFY(desk.Line().contains("is not a number"));
}

QTEST_MAIN(FindEntriesTest)
#include "FindEntriesTest.moc"
