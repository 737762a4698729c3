#include "tests/selection/SelectionDesk.h"

#include "app/mdlPublic.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

SelectionDesk::SelectionDesk(PartTable range)
{
    mdlPublic.Parts = std::move(range);
    mdlPublic.Charts = {};
    mdlPublic.Marks.mnuViewCode = [this](int index) { return index == code; };
    mdlPublic.Marks.mnuPartNum = [this](int index) { return index == numbering; };
    auto* area = new QMdiArea;
    window.setCentralWidget(area);
    window.resize(700, 700);
    form = new frmLibrary(*this);
    area->addSubWindow(form);
    form->resize(form->width(), 690);
    form->show();
    window.show();
    window.activateWindow();
    const bool active = QTest::qWaitForWindowActive(&window);
    Q_ASSERT(active);
    static_cast<void>(active);
    form->Form_Load();
}

SelectionDesk::~SelectionDesk()
{
    mdlPublic.Marks = {};
}

void SelectionDesk::ShowNewChart()
{
    if (chartFault)
    {
        std::rethrow_exception(chartFault);
    }
    ++newCharts;
    mdlPublic.Charts.Commit();
}

bool SelectionDesk::ShowSameChart(const ChartKey&)
{
    ++redrawnCharts;
    mdlPublic.Charts.Commit();
    return true;
}

void SelectionDesk::SwitchCodeView(int index)
{
    if (index == code)
    {
        return;
    }
    const UpdatingScope updating;
    form->ChangePartNum(2 * numbering + index);
    form->ChangeSize();
    form->ChangeTcc();
    code = index;
    form->ResetAmbientTemp(index);
}

void SelectionDesk::SwitchNumbering(int index)
{
    if (index == numbering)
    {
        return;
    }
    const UpdatingScope updating;
    form->ChangePartNum(code + 2 * index);
    numbering = index;
}

void SelectionDesk::Pick(const char* list, const QString& entry) const
{
    auto* box = List(list);
    const int row = box->findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive);
    Q_ASSERT(row >= 0);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() - 8, box->height() / 2));
    auto* view = box->view();
    const auto index = view->model()->index(row, box->modelColumn());
    view->scrollTo(index);
    // A list takes no click until the time of a double click has passed since it opened.
    QTest::qWait(0);
    view->setCurrentIndex(index);
    QTest::keyClick(view, Qt::Key_Return);
}

void SelectionDesk::PickByKeys(const char* list, const QString& entry) const
{
    auto* box = List(list);
    const int row = box->findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive);
    Q_ASSERT(row >= 0);
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClick(box, Qt::Key_Down, Qt::AltModifier);
    box->view()->setCurrentIndex(box->view()->model()->index(row, box->modelColumn()));
    QTest::keyClick(box->view(), Qt::Key_Return);
}

void SelectionDesk::TypePart(const QString& number) const
{
    auto* box = List("cmbPartNum");
    QTest::mouseClick(box->lineEdit(), Qt::LeftButton);
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, number);
}

void SelectionDesk::Enter(const char* box, const QString& entry) const
{
    QTest::mouseClick(Box(box), Qt::LeftButton);
    QTest::keyClick(Box(box), Qt::Key_A, Qt::ControlModifier);
    if (entry.isEmpty())
    {
        QTest::keyClick(Box(box), Qt::Key_Delete);
    }
    QTest::keyClicks(Box(box), entry);
}

void SelectionDesk::Click(const char* control) const
{
    auto* widget = Find<QWidget>(control);
    // The button of an option stands at its left end.
    const auto place = qobject_cast<QRadioButton*>(widget) != nullptr ? QPoint(6, widget->height() / 2)
                                                                      : widget->rect().center();
    QTest::mouseClick(widget, Qt::LeftButton, {}, place);
}

void SelectionDesk::ChooseChartType(int index) const
{
    Click(("optChartType_" + std::to_string(index)).c_str());
}

void SelectionDesk::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : form->window(),
                    key, modifiers);
}

QStringList SelectionDesk::Entries(const char* list) const
{
    const auto* box = List(list);
    QStringList entries;
    for (int i = 0; i < box->count(); ++i)
    {
        entries << box->itemText(i);
    }
    return entries;
}

QString SelectionDesk::Text(const char* box) const
{
    const auto* control = Find<QWidget>(box);
    const auto* list = qobject_cast<const QComboBox*>(control);
    return list != nullptr ? list->currentText() : qobject_cast<const QLineEdit*>(control)->text();
}

QString SelectionDesk::Focus() const
{
    const auto* focus = QApplication::focusWidget();
    return focus != nullptr ? focus->objectName() : QString();
}
