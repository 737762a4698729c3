/// What the status bar of the main window tells: why Plot cannot be pressed, what it needs, and what a menu's
/// entry does for as long as the menu is open.

#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QStatusBar>
#include <QTest>

class StatusHintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TellsWhatToChooseAtTheStart();
    void FollowsTheChoices();
    void TellsWhyATypedNumberIsNoPart_data();
    void TellsWhyATypedNumberIsNoPart();
    void TellsWhyANumberIsNotInTheListAnyMore();
    void TellsOfTheListInUse();
    void NamesTheConditionsThatAreEmpty();
    void FollowsTheViewOnDisplay();
    void IsNotInTheWayOfASmallWindow();
    void HintOfAMenuGoesWithIt_data();
    void HintOfAMenuGoesWithIt();
};

static QString Hint(const Desk& desk)
{
    Settle();
    return desk.Find<QLabel>("lblHint")->text();
}

void StatusHintTest::TellsWhatToChooseAtTheStart()
{
    Desk desk;
    QVERIFY(desk.Find<QLabel>("lblHint")->isVisible());
    QCOMPARE(Hint(desk), QString("Plot needs a part: choose a Size Code, or a part number."));
}

static void Choose(Desk& desk, const char* list, const QString& entry)
{
    auto* box = desk.Find<QComboBox>(list);
    box->setFocus();
    for (int i = 0; i <= box->count() && box->currentText() != entry; ++i)
    {
        QTest::keyClick(box, Qt::Key_Down);
    }
    QCOMPARE(box->currentText(), entry);
}

void StatusHintTest::FollowsTheChoices()
{
    Desk desk;
    Choose(desk, "cmbSizeCode", "1206");
    QCOMPARE(Hint(desk), QString("Plot needs a part: choose a Temperature Char., or a part number."));
    Choose(desk, "cmbTcc", "X7R");
    QCOMPARE(Hint(desk), QString("Plot needs a part: choose a Capacitance, or a part number."));
    Choose(desk, "cmbCap", "4700000");
    QCOMPARE(Hint(desk), QString("Plot needs a part: choose a Rated Voltage, or a part number."));
    Choose(desk, "cmbRatedVol", "25");
    QVERIFY(desk.CanPlot());
    QCOMPARE(Hint(desk), QString("Plot still needs: DC Bias Voltage, Frequency."));
    desk.Choose("mnuResetSelction");
    QCOMPARE(Hint(desk), QString("Plot needs a part: choose a Size Code, or a part number."));
}

void StatusHintTest::TellsWhyATypedNumberIsNoPart_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("hint");
    QTest::newRow("in other letter case")
        << "kts31nb51e106ma01"
        << "Capital and small letters differ in part numbers: enter KTS31NB51E106MA01.";
    QTest::newRow("with a blank at its end")
        << "KTS31NB51E106MA01 "
        << "A blank stands before or behind KTS31NB51E106MA01: delete it.";
    QTest::newRow("unknown") << "KTSX"
                             << "No part number of this list begins with \"KTSX\": check it, or pick one.";
}

void StatusHintTest::TellsWhyATypedNumberIsNoPart()
{
    QFETCH(QString, typed);
    QFETCH(QString, hint);
    Desk desk;
    desk.TypePart(typed);
    QVERIFY(!desk.CanPlot());
    QCOMPARE(Hint(desk), hint);
}

void StatusHintTest::TellsWhyANumberIsNotInTheListAnyMore()
{
    Desk desk;
    Choose(desk, "cmbSizeCode", "0805");
    desk.TypePart("KTS31NB51E106MA01");
    QVERIFY(!desk.CanPlot());
    QCOMPARE(Hint(desk), QString("KTS31NB51E106MA01 is not in this list: its Size Code is 1206, and 0805 is "
                                 "chosen. Choose again, or File, Reset Selection."));
}

void StatusHintTest::TellsOfTheListInUse()
{
    Desk desk;
    QTest::mouseClick(desk.Find<QComboBox>("cmbCap"), Qt::LeftButton);
    QCOMPARE(Hint(desk), QString("Capacitance is empty: choose a Size Code first."));
    Choose(desk, "cmbSizeCode", "0805");
    desk.Find<QComboBox>("cmbRatedVol")->setFocus(Qt::TabFocusReason);
    QCOMPARE(Hint(desk), QString("Rated Voltage is empty: choose a Temperature Char. first."));
    desk.Find<QComboBox>("cmbTcc")->setFocus(Qt::TabFocusReason);
    QCOMPARE(Hint(desk), QString("Plot needs a part: choose a Temperature Char., or a part number."));
}

void StatusHintTest::NamesTheConditionsThatAreEmpty()
{
    Desk desk;
    desk.PickXAxis("Frequency");
    desk.TypePart(ListedPart(desk, 0));
    QCOMPARE(Hint(desk), QString("Plot still needs: DC Bias Voltage, Parameter."));
    desk.Type("txtDCBiasVol", "1");
    QCOMPARE(Hint(desk), QString("Plot still needs: Parameter."));
    desk.Type("txtParameter", "1");
    QCOMPARE(Hint(desk), QString());
    desk.PickXAxis("Current");
    QCOMPARE(Hint(desk), QString("Plot still needs: Frequency."));
    desk.Type("txtFrequency", "100");
    QCOMPARE(Hint(desk), QString());
}

void StatusHintTest::FollowsTheViewOnDisplay()
{
    Desk desk;
    const QString global = ListedPart(desk, 0);
    desk.Choose("mnuPartNum_1");
    desk.TypePart(global);
    QCOMPARE(Hint(desk), global + " is a number of another view: choose View, Global Part Number.");
    desk.Choose("mnuPartNum_0");
    QVERIFY(Hint(desk).startsWith("Plot needs a part"));
}

void StatusHintTest::IsNotInTheWayOfASmallWindow()
{
    Desk desk;
    desk.TypePart(QString(300, 'W'));
    QVERIFY(Hint(desk).size() > 300);
    QVERIFY(desk.main->minimumSizeHint().width() < 600);
}

void StatusHintTest::HintOfAMenuGoesWithIt_data()
{
    QTest::addColumn<bool>("onChart");
    QTest::addColumn<Qt::Key>("menu");
    QTest::addColumn<QList<Qt::Key>>("keys");
    using Keys = QList<Qt::Key>;
    for (const bool onChart : {false, true})
    {
        const char* where = onChart ? "chart" : "main window";
        QTest::addRow("%s, left by Escape", where)
            << onChart << Qt::Key_V << Keys{Qt::Key_Down, Qt::Key_Escape};
        QTest::addRow("%s, an entry that does nothing", where)
            << onChart << Qt::Key_V << Keys{Qt::Key_Down, Qt::Key_Up, Qt::Key_Return};
        QTest::addRow("%s, an entry that switches", where)
            << onChart << Qt::Key_V << Keys{Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return};
        QTest::addRow("%s, all charts closed", where) << onChart << Qt::Key_W << Keys{Qt::Key_Return};
        QTest::addRow("%s, a menu in a menu", where)
            << onChart << Qt::Key_F << Keys{Qt::Key_O, Qt::Key_Down, Qt::Key_Escape, Qt::Key_Escape};
        QTest::addRow("%s, through the bar", where)
            << onChart << Qt::Key_F << Keys{Qt::Key_Down, Qt::Key_Left, Qt::Key_Escape};
    }
}

void StatusHintTest::HintOfAMenuGoesWithIt()
{
    QFETCH(bool, onChart);
    QFETCH(Qt::Key, menu);
    QFETCH(QList<Qt::Key>, keys);
    Desk desk;
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    if (!onChart)
    {
        desk.Area()->setActiveSubWindow(desk.Find<frmLibrary>("frmLibrary"));
    }
    auto* bar = desk.main->findChild<QStatusBar*>("sbrMain");
    QTest::keyClick(QApplication::focusWidget(), menu, Qt::AltModifier);
    bool told = false;
    for (const Qt::Key key : keys)
    {
        QWidget* popup = QApplication::activePopupWidget();
        QTest::keyClick(popup != nullptr ? popup : QApplication::focusWidget(), key);
        told = told || !bar->currentMessage().isEmpty();
    }
    Settle();
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QVERIFY(told || menu == Qt::Key_W);
    QCOMPARE(bar->currentMessage(), QString());
}

QTEST_MAIN(StatusHintTest)
#include "StatusHintTest.moc"
