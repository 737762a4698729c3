/// The selection form in the real main window: what the keyboard alone reaches, and what assistive technology
/// is told.

#include "app/mdlPublic.h"
#include "frame/frmMain.h"
#include "tests/selection/MessageWatch.h"
#include "tests/selection/Ranges.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <algorithm>

static PartTable Range()
{
    return MakeRange({{"P0", {"0805", "2012"}, {"X7R", "R"}, 1000, 16},
                      {"P1", {"0402", "1005"}, {"X5R", "B"}, 100, 6.3F}});
}

/// The character behind the access mark of a caption, or none.
static QChar AccessKey(QString caption)
{
    caption.remove("&&");
    const auto mark = caption.indexOf('&');
    return mark >= 0 && mark + 1 < caption.size() ? caption.at(mark + 1).toUpper() : QChar();
}

class FormKeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mdlPublic.Parts = Range();
        mdlPublic.Charts = {};
        mdlPublic.HelpLanguage = 2;
        window = std::make_unique<frmMain>();
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        form = window->findChild<frmLibrary*>();
        messages = std::make_unique<MessageWatch>();
    }
    void cleanup()
    {
        QCOMPARE(messages->Taken(), QStringList());
        messages.reset();
        window.reset();
    }

    void GoesThroughTheControlsFromTopToBottomAndRound_data()
    {
        QTest::addColumn<QString>("xAxis");
        QTest::addColumn<QStringList>("order");
        const QStringList head = {"optChartType_0", "cmbSizeCode", "cmbTcc",   "cmbCap",
                                  "cmbRatedVol",    "cmbPartNum",  "cmbXaxis", "cmbYaxis"};
        QTest::newRow("nothing chosen") << "" << head;
        QTest::newRow("over current") << "Current"
                                      << head + QStringList{"txtDCBiasVol", "txtFrequency",
                                                            "txtHeatResistance", "txtAmbientTemp", "cmdPlot"};
        QTest::newRow("over frequency")
            << "Frequency" << head + QStringList{"txtDCBiasVol",   "txtHeatResistance", "txtAmbientTemp",
                                                 "optParameter_0", "txtParameter",      "cmdPlot"};
    }
    void GoesThroughTheControlsFromTopToBottomAndRound()
    {
        QFETCH(QString, xAxis);
        QFETCH(QStringList, order);
        if (!xAxis.isEmpty())
        {
            ChoosePart("P0-0", xAxis);
        }
        Find<QRadioButton>("optChartType_0")->setFocus();
        QStringList passed;
        for (qsizetype i = 0; i < order.size(); ++i)
        {
            passed << Focus();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(passed, order);
        QCOMPARE(Focus(), order.front());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QCOMPARE(Focus(), order.back());
        QVERIFY(IsFromTopToBottom(order));
    }

    void StaysInTheFormWhileChartsAreOpen()
    {
        PlotOneLine();
        QCOMPARE(window->findChild<QMdiArea*>()->subWindowList().size(), 2);
        window->findChild<QMdiArea*>()->setActiveSubWindow(form);
        Find<QPushButton>("cmdPlot")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(Focus(), "optChartType_2");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QCOMPARE(Focus(), "cmdPlot");
    }

    void SaysNothingWhenAChartOrAMenuIsClicked()
    {
        PlotOneLine();
        auto* area = window->findChild<QMdiArea*>();
        QMdiSubWindow* chart = area->subWindowList().back();
        auto* bias = Find<QLineEdit>("txtDCBiasVol");
        QTest::mouseClick(bias, Qt::LeftButton);
        QCOMPARE(Focus(), "txtDCBiasVol");
        bias->setText("x");
        QTest::mouseClick(chart->widget(), Qt::LeftButton);
        QCOMPARE(area->activeSubWindow(), chart);
        QCOMPARE(messages->Taken(), QStringList());
        QTest::mouseClick(bias, Qt::LeftButton);
        QCOMPARE(Focus(), "txtDCBiasVol");
        window->findChild<QMenu*>("mnuFile")->popup(QPoint(5, 5));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QCOMPARE(messages->Taken(), QStringList());
        QCOMPARE(bias->text(), "x");
    }

    void ComesToTheFrontWhenARefusalAsksForABox()
    {
        PlotOneLine();
        Find<QLineEdit>("txtDCBiasVol")->setText("x");
        auto* area = window->findChild<QMdiArea*>();
        area->setActiveSubWindow(area->subWindowList().back());
        QVERIFY(!form->CheckChartConditions());
        QCOMPARE(messages->Taken(),
                 QStringList{"DC Bias Voltage is invalid!|Please enter a Number from 0 to 16[V]"});
        QCOMPARE(area->activeSubWindow(), form);
        QCOMPARE(Focus(), "txtDCBiasVol");
    }

    void ComesToTheFrontByAClickOnAnyPartOfIt()
    {
        PlotOneLine();
        auto* area = window->findChild<QMdiArea*>();
        auto* chart = area->subWindowList().back();
        auto* bias = Find<QLineEdit>("txtDCBiasVol");
        QTest::mouseClick(bias, Qt::LeftButton);
        QTest::mouseClick(chart->widget(), Qt::LeftButton);
        QCOMPARE(area->activeSubWindow(), chart);
        QTest::mouseClick(Find<QWidget>("frmLibraryContents"), Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(area->activeSubWindow(), form);
        QVERIFY(form->isAncestorOf(QApplication::focusWidget()));
        area->setActiveSubWindow(chart);
        QTest::mouseClick(Find<QComboBox>("cmbYaxis"), Qt::LeftButton);
        QCOMPARE(area->activeSubWindow(), form);
        Find<QComboBox>("cmbYaxis")->hidePopup();
        QCOMPARE(Focus(), "cmbYaxis");
    }

    void StaysWhereItIs()
    {
        const QPoint place = form->pos();
        QTest::keyClick(window.get(), Qt::Key_Minus, Qt::AltModifier);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QTest::keyClick(window.get(), Qt::Key_F4, Qt::ControlModifier);
        QTest::keyClick(window.get(), Qt::Key_W, Qt::ControlModifier);
        QVERIFY(form->isVisible());
        QCOMPARE(form->pos(), place);
    }

    void HasADifferentAccessKeyForEveryControl()
    {
        ChoosePart("P0-0", "Frequency");
        QMap<QChar, QString> owners;
        // The menus of the main window and of chart windows.
        for (const char menu : {'F', 'V', 'W', 'H', 'C'})
        {
            owners[QLatin1Char(menu)] = "menu";
        }
        const auto add = [&owners](const QString& caption, const QString& name)
        {
            const QChar key = AccessKey(caption);
            QVERIFY2(key.isNull() || !owners.contains(key), qPrintable(name + " and " + owners.value(key)));
            if (!key.isNull())
            {
                owners[key] = name;
            }
        };
        for (const auto* button : form->findChildren<QAbstractButton*>())
        {
            add(button->text(), button->objectName());
        }
        for (const auto* label : form->findChildren<QLabel*>())
        {
            add(label->text(), label->objectName());
        }
        for (const auto* frame : form->findChildren<QGroupBox*>())
        {
            add(frame->title(), frame->objectName());
        }
        QCOMPARE(owners.size(), 5 + 17);
    }

    void GivesTheFocusByTheAccessKeyOfALabel()
    {
        ChoosePart("P0-0", "Current");
        for (const auto* label : form->findChildren<QLabel*>())
        {
            const QChar key = AccessKey(label->text());
            if (key.isNull())
            {
                continue;
            }
            QVERIFY2(label->buddy() != nullptr, qPrintable(label->objectName()));
            Find<QRadioButton>("optChartType_0")->setFocus();
            QTest::keyClick(window.get(), key.toLatin1(), Qt::AltModifier);
            QCOMPARE(Focus(), label->buddy()->objectName());
        }
    }

    void PlotsByAccessKey()
    {
        ChoosePart("P0-0", "Current");
        Find<QLineEdit>("txtDCBiasVol")->setText("0");
        Find<QLineEdit>("txtFrequency")->setText("100");
        Find<QRadioButton>("optChartType_2")->setFocus();
        QTest::keyClick(window.get(), Qt::Key_U, Qt::AltModifier);
        QTRY_VERIFY(Find<QRadioButton>("optChartType_2")->isChecked());
        QTRY_COMPARE(Find<QComboBox>("cmbXaxis")->currentText(), "Temperature");
        Find<QLineEdit>("txtDCBiasVol")->setText("1");
        QTest::keyClick(window.get(), Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(mdlPublic.Charts.CurrentChart(), 1);
    }

    void ComesBackFromAChartByKeys()
    {
        PlotOneLine();
        QVERIFY(window->findChild<QMdiArea*>()->activeSubWindow() != form);

        QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Control);
        QCOMPARE(window->findChild<QMdiArea*>()->activeSubWindow(), form);
        QTest::keyClick(window.get(), Qt::Key_D, Qt::AltModifier);
        QCOMPARE(Focus(), "txtDCBiasVol");
    }

    void StaysInReachOfKeysWhenAChartCloses_data()
    {
        QTest::addColumn<bool>("byMinimising");
        QTest::newRow("closed") << false;
        QTest::newRow("minimised, and the form clicked beside its controls") << true;
    }
    void StaysInReachOfKeysWhenAChartCloses()
    {
        QFETCH(bool, byMinimising);
        PlotOneLine();
        auto* area = window->findChild<QMdiArea*>();
        QMdiSubWindow* chart = area->subWindowList().back();
        // Choosing a size disables Plot, which had the focus as the chart opened.
        auto* sizes = Find<QComboBox>("cmbSizeCode");
        sizes->setFocus();
        QTest::keyClick(sizes, Qt::Key_Down);
        QVERIFY(!Find<QPushButton>("cmdPlot")->isEnabled());
        area->setActiveSubWindow(chart);
        byMinimising ? chart->showMinimized() : static_cast<void>(chart->close());
        QCoreApplication::processEvents();
        QTest::mouseClick(Find<QWidget>("frmLibraryContents"), Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(area->activeSubWindow(), form);
        QVERIFY(QApplication::focusWidget() != nullptr && form->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(window.get(), Qt::Key_N, Qt::AltModifier);
        QCOMPARE(Focus(), "cmbPartNum");
    }

    void EntriesOfAFormerPartDoNotComeBackByUndo()
    {
        ChoosePart("P0-0", "Frequency");
        for (const char* name : {"txtDCBiasVol", "txtHeatResistance", "txtParameter"})
        {
            auto* box = Find<QLineEdit>(name);
            box->setFocus();
            QTest::keyClicks(box, "7");
            QVERIFY(box->isUndoAvailable());
        }
        // Another chart type and back: the boxes are emptied.
        Find<QRadioButton>("optChartType_1")->click();
        Find<QRadioButton>("optChartType_0")->click();
        for (const char* name : {"txtDCBiasVol", "txtFrequency", "txtHeatResistance", "txtParameter"})
        {
            QVERIFY2(!Find<QLineEdit>(name)->isUndoAvailable(), name);
        }
    }

    void ChoosesAChartTypeWithTheArrowKeys()
    {
        Find<QRadioButton>("optChartType_0")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(Focus(), "optChartType_1");
        QVERIFY(Find<QRadioButton>("optChartType_1")->isChecked());
        QCOMPARE(Find<QComboBox>("cmbXaxis")->currentText(), "Frequency");
    }

    void TellsEveryControlsName()
    {
        QStringList names;
        for (QWidget* control : form->findChildren<QWidget*>())
        {
            const bool works = qobject_cast<QAbstractButton*>(control) != nullptr ||
                               qobject_cast<QComboBox*>(control) != nullptr ||
                               (qobject_cast<QLineEdit*>(control) != nullptr &&
                                qobject_cast<QComboBox*>(control->parent()) == nullptr);
            if (!works || control->objectName().startsWith("qt_"))
            {
                continue;
            }
            const auto* told = QAccessible::queryAccessibleInterface(control);
            QVERIFY(told != nullptr);
            const QString name = told->text(QAccessible::Name);
            QVERIFY2(!name.isEmpty() && !name.contains('&'), qPrintable(control->objectName() + ": " + name));
            QVERIFY2(!names.contains(name + control->parent()->objectName()), qPrintable(name));
            names << name + control->parent()->objectName();
        }
        // Eight options, seven lists, five boxes and Plot.
        QCOMPARE(names.size(), 21);
    }

    void OpensALongListAtThePartThatIsShown()
    {
        window.reset();
        mdlPublic.Parts = LargestRange();
        window = std::make_unique<frmMain>();
        window->show();
        form = window->findChild<frmLibrary*>();
        auto* box = Find<QComboBox>("cmbPartNum");
        QCOMPARE(box->count(), 32767);
        QTest::keyClicks(box, "LARGE132766-0");
        QVERIFY(Find<QPushButton>("cmdPlot")->isEnabled());
        QTest::keyClick(box, Qt::Key_Down, Qt::AltModifier);
        const auto shown = box->view()->currentIndex();
        QCOMPARE(shown.row(), 32766);
        QTRY_VERIFY(box->view()->viewport()->rect().intersects(box->view()->visualRect(shown)));
        box->hidePopup();
    }

private:
    template <class Control> Control* Find(const char* name) const
    {
        auto* control = form->findChild<Control*>(QString::fromLatin1(name));
        Q_ASSERT(control != nullptr);
        return control;
    }

    static QString Focus()
    {
        const auto* focus = QApplication::focusWidget();
        return focus != nullptr ? focus->objectName() : QString();
    }

    void ChoosePart(const char* number, const QString& xAxis) const
    {
        auto* axes = Find<QComboBox>("cmbXaxis");
        axes->setFocus();
        while (axes->currentText() != xAxis)
        {
            QTest::keyClick(axes, Qt::Key_Down);
        }
        auto* box = Find<QComboBox>("cmbPartNum");
        box->setFocus();
        QTest::keyClicks(box, number);
        for (const char* name : {"txtDCBiasVol", "txtFrequency", "txtParameter"})
        {
            Find<QLineEdit>(name)->setText("10");
        }
    }

    void PlotOneLine() const
    {
        QTest::mouseClick(Find<QRadioButton>("optChartType_2"), Qt::LeftButton, {}, QPoint(6, 8));
        ChoosePart("P0-0", "Temperature");
        QTest::mouseClick(Find<QPushButton>("cmdPlot"), Qt::LeftButton);
        QCOMPARE(mdlPublic.Charts.CurrentChart(), 1);
    }

    /// No control lies above the one before it, except to its right.
    bool IsFromTopToBottom(const QStringList& order) const
    {
        return std::ranges::is_sorted(order, {},
                                      [this](const QString& name)
                                      {
                                          const auto* control = form->findChild<QWidget*>(name);
                                          const QPoint place = control->mapTo(form, QPoint());
                                          return std::pair(place.y() / 12, place.x());
                                      });
    }

    std::unique_ptr<frmMain> window;
    frmLibrary* form = nullptr;
    std::unique_ptr<MessageWatch> messages;
};

QTEST_MAIN(FormKeyboardTest)
#include "FormKeyboardTest.moc"
