/// The main window by keys and wheel: where the focus is, which keys work over a chart, and what they may not
/// do.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QWheelEvent>

#include <array>

class KeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ComesBackToWhereTheUserWas_data();
    void ComesBackToWhereTheUserWas();
    void ComesBackToTheTextAsItWasLeft();
    void KeepsItsEntriesWhenTheUserGoesOnByArrows();
    void ComesBackWhenTheChartCloses();
    void StaysBehindAMessage();
    void StaysBehindTheRangeDialog();
    void FormKeysWorkOverAChart_data();
    void FormKeysWorkOverAChart();
    void FormKeysOfButtonsWorkOverAChart();
    void FormKeyOfADisabledBoxLeavesTheChart();
    void MenuKeysOverAChartOpenItsMenus();
    void EnterInAConditionPlots_data();
    void EnterInAConditionPlots();
    void EnterOnARefusedConditionSaysSo();
    void WheelGoesOnFromTheTypedPart_data();
    void WheelGoesOnFromTheTypedPart();
    void BlankOfAParameterButtonChoosesIt();
    void ParameterKeyLeadsToTheButtonThatIsOn();
    void AccessMarksStandUnderLettersWithoutTails();
    void BooksNameEveryAccessKey();
};

/// Goes to the next child window, as Ctrl+Tab does.
static void GoToNextWindow()
{
    QWidget* focus = QApplication::focusWidget();
    QTest::keyPress(focus, Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(focus, Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(focus, Qt::Key_Control);
    Settle();
}

static void PlotRise(Desk& desk)
{
    desk.PlotRise(0, "25");
    QCOMPARE(desk.Area()->activeSubWindow(), desk.Charts().front());
}

static int PlottedLines()
{
    return mdlPublic.Charts.CurrentChart();
}

static QMdiSubWindow* Form(const Desk& desk)
{
    return desk.Find<frmLibrary>("frmLibrary");
}

void KeyboardTest::ComesBackToWhereTheUserWas_data()
{
    QTest::addColumn<QString>("control");
    for (const char* control : {"optChartType_0", "cmbSizeCode", "cmbPartNum", "cmbXaxis", "txtDCBiasVol",
                                "txtFrequency", "txtAmbientTemp", "cmdPlot"})
    {
        QTest::newRow(control) << control;
    }
}

void KeyboardTest::ComesBackToWhereTheUserWas()
{
    QFETCH(QString, control);
    Desk desk;
    PlotRise(desk);
    desk.Find<QWidget>(control)->setFocus(Qt::TabFocusReason);
    QCOMPARE(desk.Area()->activeSubWindow(), Form(desk));
    GoToNextWindow();
    QCOMPARE(desk.Area()->activeSubWindow(), desk.Charts().front());
    GoToNextWindow();
    QCOMPARE(desk.Area()->activeSubWindow(), Form(desk));
    QVERIFY2(desk.HasFocus(control), qPrintable(desk.main->focusWidget()->objectName()));
}

void KeyboardTest::ComesBackToTheTextAsItWasLeft()
{
    Desk desk;
    PlotRise(desk);
    desk.Type("txtFrequency", "1234");
    auto* box = desk.Find<QLineEdit>("txtFrequency");
    box->setCursorPosition(1);
    GoToNextWindow();
    GoToNextWindow();
    QVERIFY(desk.HasFocus("txtFrequency"));
    QCOMPARE(box->cursorPosition(), 1);
    QVERIFY(!box->hasSelectedText());
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

void KeyboardTest::KeepsItsEntriesWhenTheUserGoesOnByArrows()
{
    Desk desk;
    PlotRise(desk);
    desk.Find<QComboBox>("cmbYaxis")->setFocus(Qt::TabFocusReason);
    GoToNextWindow();
    GoToNextWindow();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QVERIFY(desk.CanPlot());
    QVERIFY(desk.Find<QRadioButton>("optChartType_0")->isChecked());
    QCOMPARE(desk.Text("txtFrequency"), QString("100"));
}

void KeyboardTest::ComesBackWhenTheChartCloses()
{
    Desk desk;
    PlotRise(desk);
    QTest::mouseClick(desk.Find<QLineEdit>("txtHeatResistance"), Qt::LeftButton);
    GoToNextWindow();
    desk.ClickCloseBox(desk.Charts().front());
    QVERIFY(desk.HasFocus("txtHeatResistance"));
}

/// Presses Ctrl+Tab on each dialog that is shown while it lives, then closes it.
class KeysOnDialogs : public QObject
{
public:
    explicit KeysOnDialogs(Desk& owner)
        : desk(owner)
    {
        qApp->installEventFilter(this);
    }

    int shown = 0;
    QStringList active;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* dialog = qobject_cast<QDialog*>(watched);
        if (dialog != nullptr && event->type() == QEvent::Show)
        {
            QMetaObject::invokeMethod(
                dialog, [this, dialog] { PressOn(*dialog); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void PressOn(QWidget& dialog)
    {
        ++shown;
        QWidget* focus = dialog.focusWidget();
        QTest::keyPress(focus, Qt::Key_Tab, Qt::ControlModifier);
        active << desk.Area()->activeSubWindow()->objectName();
        QTest::keyRelease(focus, Qt::Key_Control);
        active << desk.Area()->activeSubWindow()->objectName();
        dialog.close();
    }

    Desk& desk;
};

void KeyboardTest::StaysBehindAMessage()
{
    Desk desk;
    PlotRise(desk);
    desk.Type("txtFrequency", "5");
    {
        KeysOnDialogs keys(desk);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(keys.shown, 1);
        QCOMPARE(keys.active, QStringList(2, "frmLibrary"));
    }
    Settle();
    QCOMPARE(desk.Area()->activeSubWindow(), Form(desk));
    QVERIFY(desk.HasFocus("txtFrequency"));
}

void KeyboardTest::StaysBehindTheRangeDialog()
{
    Desk desk;
    PlotRise(desk);
    KeysOnDialogs keys(desk);
    desk.Choose("mnuChartExpand");
    QCOMPARE(keys.shown, 1);
    QCOMPARE(keys.active, QStringList(2, "frmGraph"));
    QCOMPARE(desk.Area()->activeSubWindow(), desk.Charts().front());
}

void KeyboardTest::FormKeysWorkOverAChart_data()
{
    QTest::addColumn<char>("key");
    QTest::addColumn<QString>("control");
    const std::array<std::pair<char, const char*>, 11> keys = {{{'S', "cmbSizeCode"},
                                                                {'T', "cmbTcc"},
                                                                {'A', "cmbCap"},
                                                                {'R', "cmbRatedVol"},
                                                                {'N', "cmbPartNum"},
                                                                {'X', "cmbXaxis"},
                                                                {'Y', "cmbYaxis"},
                                                                {'D', "txtDCBiasVol"},
                                                                {'K', "txtFrequency"},
                                                                {'E', "txtHeatResistance"},
                                                                {'B', "txtAmbientTemp"}}};
    for (const auto& [key, control] : keys)
    {
        QTest::newRow(control) << key << control;
    }
}

void KeyboardTest::FormKeysWorkOverAChart()
{
    QFETCH(char, key);
    QFETCH(QString, control);
    Desk desk;
    PlotRise(desk);
    // What was left behind in another box is not judged on the way.
    desk.Find<QLineEdit>("txtDCBiasVol")->setText("99");
    QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
    Settle();
    QCOMPARE(desk.Area()->activeSubWindow(), Form(desk));
    QVERIFY2(desk.HasFocus(control), qPrintable(desk.main->focusWidget()->objectName()));
    if (auto* box = desk.Find<QLineEdit>(control); box != nullptr && control.startsWith("txt"))
    {
        QCOMPARE(box->selectedText(), box->text());
    }
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

void KeyboardTest::FormKeysOfButtonsWorkOverAChart()
{
    Desk desk;
    PlotRise(desk);
    desk.Find<QLineEdit>("txtFrequency")->setText("200");
    QTest::keyClick(desk.Charts().front(), Qt::Key_P, Qt::AltModifier);
    QTRY_COMPARE(PlottedLines(), 2);
    QTest::keyClick(desk.Charts().front(), Qt::Key_U, Qt::AltModifier);
    QTRY_VERIFY(desk.Find<QRadioButton>("optChartType_2")->isChecked());
    QTRY_COMPARE(desk.Find<QComboBox>("cmbXaxis")->currentText(), QString("Temperature"));
    QVERIFY(desk.HasFocus("optChartType_2"));
    QCOMPARE(desk.Area()->activeSubWindow(), Form(desk));
}

void KeyboardTest::FormKeyOfADisabledBoxLeavesTheChart()
{
    Desk desk;
    desk.ClickChartType(2);
    desk.PlotCapacitance(ListedPart(desk, 0), "0");
    QVERIFY(!desk.Find<QLineEdit>("txtFrequency")->isEnabled());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_K, Qt::AltModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_M, Qt::AltModifier);
    Settle();
    QCOMPARE(desk.Area()->activeSubWindow(), desk.Charts().front());
}

void KeyboardTest::MenuKeysOverAChartOpenItsMenus()
{
    Desk desk;
    PlotRise(desk);
    for (const Qt::Key key : {Qt::Key_F, Qt::Key_V, Qt::Key_C, Qt::Key_W, Qt::Key_H})
    {
        QApplication::setActiveWindow(desk.main.get());
        desk.Area()->setActiveSubWindow(desk.Charts().front());
        QTest::keyClick(desk.Charts().front(), key, Qt::AltModifier);
        auto* opened = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(opened != nullptr);
        QVERIFY(desk.Charts().front()->isAncestorOf(opened->parentWidget()));
        opened->close();
    }
}

void KeyboardTest::EnterInAConditionPlots_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<Qt::Key>("key");
    for (const char* box : {"txtDCBiasVol", "txtFrequency", "txtHeatResistance", "txtAmbientTemp"})
    {
        QTest::newRow(box) << box << Qt::Key_Return;
    }
    QTest::newRow("txtParameter") << "txtParameter" << Qt::Key_Return;
    QTest::newRow("by the key of the number block") << "txtDCBiasVol" << Qt::Key_Enter;
}

void KeyboardTest::EnterInAConditionPlots()
{
    QFETCH(QString, box);
    QFETCH(Qt::Key, key);
    Desk desk;
    const bool overFrequency = box == "txtParameter";
    desk.PickXAxis(overFrequency ? "Frequency" : "Current");
    desk.TypePart(ListedPart(desk, 0));
    desk.Type("txtDCBiasVol", "0");
    desk.Type(overFrequency ? "txtParameter" : "txtFrequency", overFrequency ? "0.001" : "100");
    desk.Find<QLineEdit>(box)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), key);
    Settle();
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(PlottedLines(), 1);
    QCOMPARE(desk.Charts().size(), std::size_t{1});
}

void KeyboardTest::EnterOnARefusedConditionSaysSo()
{
    Desk desk;
    desk.TypePart(ListedPart(desk, 0));
    desk.Type("txtFrequency", "5");
    desk.Type("txtDCBiasVol", "0");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    Settle();
    QVERIFY(desk.TakeText().startsWith("Frequency is invalid!"));
    QVERIFY(desk.HasFocus("txtFrequency"));
    QCOMPARE(PlottedLines(), 0);
}

static void Turn(QWidget* widget, int notches)
{
    const QPointF place = widget->rect().center();
    QWheelEvent turn(place, widget->mapToGlobal(place), {}, {0, -120 * notches}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    // Only an event from outside is passed on to the widgets below.
    QSpontaneKeyEvent::setSpontaneous(&turn);
    qApp->notify(widget, &turn);
}

void KeyboardTest::WheelGoesOnFromTheTypedPart_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("notches");
    QTest::addColumn<int>("to");
    QTest::newRow("down") << 7 << 1 << 8;
    QTest::newRow("up") << 7 << -1 << 6;
}

void KeyboardTest::WheelGoesOnFromTheTypedPart()
{
    QFETCH(int, from);
    QFETCH(int, notches);
    QFETCH(int, to);
    Desk desk;
    const QString typed = ListedPart(desk, from);
    const QString expected = ListedPart(desk, to);
    desk.TypePart(typed);
    // The pointer is over the text: the wheel comes to the box by way of its edit.
    Turn(desk.Find<QComboBox>("cmbPartNum")->lineEdit(), notches);
    QCOMPARE(desk.Find<QComboBox>("cmbPartNum")->currentText(), expected);
    QVERIFY(desk.CanPlot());
}

void KeyboardTest::BlankOfAParameterButtonChoosesIt()
{
    Desk desk;
    desk.PickXAxis("Frequency");
    desk.TypePart(ListedPart(desk, 0));
    for (const int index : {1, 2, 3, 0})
    {
        auto* button = desk.Find<QRadioButton>(QStringLiteral("optParameter_%1").arg(index));
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(button->width() - 2, button->height() / 2));
        QVERIFY2(button->isChecked(), qPrintable(button->text()));
    }
}

void KeyboardTest::ParameterKeyLeadsToTheButtonThatIsOn()
{
    Desk desk;
    desk.PickXAxis("Frequency");
    desk.TypePart(ListedPart(desk, 0));
    desk.ClickParameter(2);
    desk.Type("txtParameter", "1");
    for (const char* from : {"cmbSizeCode", "txtParameter"})
    {
        desk.Find<QWidget>(from)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_M, Qt::AltModifier);
        QVERIFY2(desk.HasFocus("optParameter_2"), from);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QVERIFY(desk.HasFocus("optParameter_3"));
    QVERIFY(desk.Find<QRadioButton>("optParameter_3")->isChecked());
    QCOMPARE(desk.Find<QLabel>("lblParameter")->text(), QString("[VA]"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    QVERIFY(desk.Find<QRadioButton>("optParameter_2")->isChecked());

    // Over a chart it does the same.
    desk.Type("txtDCBiasVol", "0");
    desk.Type("txtParameter", "0.001");
    desk.ClickPlot();
    QCOMPARE(desk.Area()->activeSubWindow(), desk.Charts().front());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_M, Qt::AltModifier);
    Settle();
    QVERIFY(desk.HasFocus("optParameter_2"));
    QCOMPARE(desk.Text("txtParameter"), QString("0.001"));
}

/// A line under a tail makes another letter of it: a "q" reads like a "g".
void KeyboardTest::AccessMarksStandUnderLettersWithoutTails()
{
    const Desk desk;
    int marks = 0;
    for (const auto* label : Form(desk)->findChildren<QLabel*>())
    {
        const auto mark = label->text().indexOf('&');
        marks += mark >= 0 ? 1 : 0;
        QVERIFY2(mark < 0 || !QStringLiteral("gjpqy").contains(label->text().at(mark + 1)),
                 qPrintable(label->text()));
    }
    QCOMPARE(marks, 11);
    QCOMPARE(desk.Find<QLabel>("lblFrequency")->text().remove('&'), QString("Frequency[kHz]"));
}

/// The keys of the form's captions with the captions they lead to, as the help books list them.
static QStringList ListedKeys(const QWidget& form)
{
    QStringList captions;
    for (const auto* label : form.findChildren<QLabel*>())
    {
        captions << label->text();
    }
    for (const auto* button : form.findChildren<QAbstractButton*>())
    {
        captions << button->text();
    }
    for (const auto* frame : form.findChildren<QGroupBox*>())
    {
        captions << frame->title();
    }
    QStringList listed;
    for (const QString& caption : captions)
    {
        const auto mark = caption.indexOf('&');
        if (mark >= 0)
        {
            listed << QStringLiteral("<kbd>Alt+%1</kbd></td><td><b>%2</b>")
                          .arg(caption.at(mark + 1).toUpper())
                          .arg(QString(caption).remove('&'));
        }
    }
    return listed;
}

void KeyboardTest::BooksNameEveryAccessKey()
{
    const Desk desk;
    const QStringList listed = ListedKeys(*Form(desk));
    QCOMPARE(listed.size(), 17);
    for (const char* name : {"tavike.hlp", "tavikj.hlp"})
    {
        QFile book(QStringLiteral(HELP_BOOKS "/") + name);
        QVERIFY(book.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(book.readAll());
        for (const QString& row : listed)
        {
            QVERIFY2(text.contains(row), qPrintable(name + row));
        }
    }
}

QTEST_MAIN(KeyboardTest)
#include "KeyboardTest.moc"
