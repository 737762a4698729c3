/// What the random user does on the selection form.

#include "app/mdlPublic.h"
#include "tests/frame/randomuser/PlainNumbers.h"
#include "tests/frame/randomuser/User.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

static const QStringList RestartingControls = {"cmbSizeCode", "cmbTcc", "cmbCap", "cmbRatedVol",
                                               "cmbPartNum"};

/// True for a control whose click acts on what the box holds.
static bool ActsOn(const QString& control, const QString& box)
{
    if (control.startsWith("optChartType") || RestartingControls.contains(control))
    {
        return true;
    }
    const bool ofLoad = box == "txtFrequency" || box == "txtParameter";
    return (ofLoad && control == "cmbXaxis") || (box == "txtParameter" && control.startsWith("optParameter"));
}

/// The condition box that has the focus, or "".
QString User::BoxWithFocus() const
{
    const QString focus = hands->Focus();
    return ConditionBoxes.contains(focus) ? focus : QString();
}

std::optional<QString> User::RefusalOnLeaving(const QString& target, bool byClick) const
{
    const QString box = BoxWithFocus();
    if (box.isEmpty() || box == target || !form->IsEnabled(box) || (byClick && ActsOn(target, box)))
    {
        return std::nullopt;
    }
    return form->Refusal(box);
}

/// Goes to a control by a click or, without a click, as its access key does. False when the box that is left
/// has been refused: it keeps the focus then, and the click has no effect.
bool User::GoTo(const QString& control, bool byClick)
{
    const auto refusal = RefusalOnLeaving(control, byClick);
    const QString box = BoxWithFocus();
    byClick ? hands->Click(control) : hands->Of(control)->setFocus(Qt::ShortcutFocusReason);
    hands->Ready();
    Expect(refusal ? QStringList{Exclamation(*refusal)} : QStringList());
    found.Same("the focus", hands->Focus(), refusal ? box : control);
    return !refusal;
}

// ---- Chart type and lists ----

QString User::ClickChartType()
{
    const int type = Lot(4);
    if (GoTo(QStringLiteral("optChartType_%1").arg(type), true))
    {
        form->ChooseChartType(type);
    }
    return QString::number(type);
}

/// The arrow keys go through the buttons and choose on the way.
QString User::StepChartType()
{
    const int type = form->Selection.ChartType;
    if (!GoTo(QStringLiteral("optChartType_%1").arg(type), true))
    {
        return "refused";
    }
    form->ChooseChartType(type);
    if (type < 3)
    {
        hands->Press(Qt::Key_Down);
        form->ChooseChartType(type + 1);
    }
    return QString::number(type);
}

void User::PickEntry(const QString& list, int row)
{
    if (list == "cmbPartNum")
    {
        form->PickPart(form->Selection.Parts[static_cast<std::size_t>(row)]);
    }
    else if (list == "cmbXaxis")
    {
        form->PickXAxis(form->XAxes().at(row));
    }
    else if (list == "cmbYaxis")
    {
        form->PickYAxis(form->YAxes().at(row));
    }
    else
    {
        const int level = static_cast<int>(UpperLists.indexOf(list));
        form->PickLevel(level, form->Entries(level).at(row));
    }
}

/// Opens a list by the mouse or by keys, and picks any entry.
QString User::PickFromList()
{
    // The lower lists fill only when the upper ones have been used in order.
    static const QStringList lists =
        UpperLists + UpperLists + UpperLists +
        QStringList{"cmbXaxis", "cmbXaxis", "cmbYaxis", "cmbYaxis", "cmbPartNum", "cmbPartNum", "cmbPartNum"};
    const QString list = AnyOf(lists);
    const int entries = hands->Of<QComboBox>(list)->count();
    if (entries == 0)
    {
        return list + " is empty";
    }
    const bool byMouse = Chance(60);
    const auto refusal = RefusalOnLeaving(list, byMouse);
    if (byMouse)
    {
        hands->ClickArrow(list);
        Expect(refusal ? QStringList{Exclamation(*refusal)} : QStringList());
    }
    else if (GoTo(list, false))
    {
        hands->Press(Qt::Key_Down, Qt::AltModifier);
    }
    found.Same("an open list", QApplication::activePopupWidget() != nullptr, !refusal);
    if (refusal || QApplication::activePopupWidget() == nullptr)
    {
        return list + " refused";
    }
    if (Chance(10))
    {
        hands->CloseMenus();
        return list + " opened and closed";
    }
    const int row = Lot(entries);
    const QString entry = hands->Of<QComboBox>(list)->itemText(row);
    hands->PickOpen(list, row);
    PickEntry(list, row);
    return list + " " + entry;
}

/// With a part of the list shown, the arrow key takes the next one.
QString User::StepThroughParts()
{
    const auto& parts = form->Selection.Parts;
    const auto shown = form->Selection.Chosen;
    const auto place = std::ranges::find(parts, shown.value_or(0));
    if (!form->CanPlot || place == parts.end() || place + 1 == parts.end())
    {
        return "none";
    }
    if (GoTo("cmbPartNum", true))
    {
        hands->Press(Qt::Key_Down);
        form->PickPart(*(place + 1));
    }
    return form->PartText;
}

/// A part number as it is, in other letters, not to its end, or nothing like one.
QString User::TypePart()
{
    static const QStringList wrong = {"",
                                      "x",
                                      "KTU",
                                      QString(300, u'K'),
                                      QStringLiteral("\u00C4\u00D6\u00DC"),
                                      QStringLiteral("\u30B3\u30F3\u30C7\u30F3\u30B5"),
                                      QStringLiteral("\U0001F50B"),
                                      "%1%2",
                                      "<b>KTU</b>",
                                      "' OR 1=1 --"};
    const auto& parts = form->Selection.Parts;
    const bool listed = !parts.empty() && Chance(75);
    const auto part = listed
                          ? AnyOf(parts)
                          : static_cast<std::size_t>(Lot(static_cast<int>(mdlPublic.Parts.PartData.size())));
    QString text = NumberOf(part, code + 2 * numbering);
    switch (Lot(8))
    {
    case 0:
        text = text.toLower();
        break;
    case 1:
        text.chop(1 + Lot(3));
        break;
    case 2:
        text += " ";
        break;
    case 3:
        text = AnyOf(wrong);
        break;
    default:
        break;
    }
    if (!GoTo("cmbPartNum", true))
    {
        return "refused";
    }
    // A surrogate alone is no letter, so texts outside the plane are pasted.
    const bool paste = Chance(50) || text.size() > 40 || (!text.isEmpty() && text.at(0).isSurrogate());
    hands->Replace(hands->Of<QComboBox>("cmbPartNum")->lineEdit(), text, paste);
    if (!form->PartText.isEmpty())
    {
        form->SetPartText("");
    }
    for (qsizetype length = paste ? text.size() : 1; length <= text.size() && !text.isEmpty(); ++length)
    {
        form->SetPartText(text.left(length));
    }
    return (paste ? "pasted " : "typed ") + text;
}

QString User::ClickParameter()
{
    const int index = Lot(4);
    if (!form->ParameterEnabled)
    {
        return "disabled";
    }
    if (GoTo(QStringLiteral("optParameter_%1").arg(index), true))
    {
        form->ClickParameter(index);
    }
    return QString::number(index);
}

// ---- Conditions ----

/// An entry that is mostly right, else out of range, no number, or a number that does not fit.
QString User::EntryFor(const QString& box)
{
    static const QStringList wrong = {"",
                                      " ",
                                      "abc",
                                      "1,5",
                                      "1e",
                                      "--1",
                                      "0x10",
                                      "inf",
                                      "nan",
                                      "1E39",
                                      "-1E39",
                                      "1E400",
                                      "-1",
                                      "-0",
                                      "1 000",
                                      ".",
                                      "1e-50",
                                      "1E9",
                                      "5.",
                                      ".5",
                                      " 30 ",
                                      "+30",
                                      "1.5.1",
                                      QStringLiteral("\uFF11\uFF12"),
                                      QStringLiteral("25\u00B0"),
                                      QString(400, u'9'),
                                      "9.99",
                                      "1000.01"};
    static const QMap<QString, QStringList> right = {
        {"txtDCBiasVol", {"0", "1", "2", "2.5", "0.1", "4", "6.3", "10", "16", "25", "50", "100"}},
        {"txtFrequency", {"10", "100", "1000", "200.5", "1E2", "999.999"}},
        {"txtHeatResistance", {"50", "100", "1", "0.5", "123.456", "1000"}},
        {"txtAmbientTemp", {"20", "25", "30", "40", "65.5", "85", "105", "125", "-25", "-55", "-30"}},
        {"txtParameter", {"0", "0.00001", "0.001", "0.1", "1", "2", "5"}}};
    return Chance(25) ? AnyOf(wrong) : AnyOf(right[box]);
}

QString User::TypeInto(const QString& box)
{
    if (!GoTo(box, true))
    {
        return "refused";
    }
    const QString entry = EntryFor(box);
    hands->Replace(hands->Of<QLineEdit>(box), entry, entry.size() > 40 || Chance(20));
    form->Boxes[box] = entry;
    return box + " " + entry;
}

QString User::TypeCondition()
{
    const QString box = AnyOf(ConditionBoxes);
    return form->IsEnabled(box) ? TypeInto(box) : box + " is disabled";
}

/// Goes through the boxes that the chart needs, as somebody does who wants to plot.
QString User::TypeAllConditions()
{
    QStringList typed;
    for (const QString& box : form->CheckedBoxes())
    {
        if (form->IsEnabled(box) && !(box == "txtHeatResistance" && Chance(80)))
        {
            typed << TypeInto(box);
        }
    }
    return typed.join(", ");
}

/// Leaves a box by Tab or Backtab.
QString User::LeaveByKey()
{
    const QString box = BoxWithFocus();
    if (box.isEmpty() || !form->IsEnabled(box))
    {
        return "no box has the focus";
    }
    const auto refusal = form->Refusal(box);
    hands->Press(AnyOf(std::array{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab}));
    hands->Ready();
    Expect(refusal ? QStringList{Exclamation(*refusal)} : QStringList());
    found.Same("the box keeps the focus", hands->Focus() == box, refusal.has_value());
    return box;
}

/// The access key of a label leads to its box or list, also from a chart.
QString User::GoByAccessKey()
{
    static const std::vector<std::pair<Qt::Key, QString>> keys = {
        {Qt::Key_S, "cmbSizeCode"},       {Qt::Key_T, "cmbTcc"},        {Qt::Key_A, "cmbCap"},
        {Qt::Key_R, "cmbRatedVol"},       {Qt::Key_N, "cmbPartNum"},    {Qt::Key_X, "cmbXaxis"},
        {Qt::Key_Y, "cmbYaxis"},          {Qt::Key_D, "txtDCBiasVol"},  {Qt::Key_K, "txtFrequency"},
        {Qt::Key_E, "txtHeatResistance"}, {Qt::Key_B, "txtAmbientTemp"}};
    const auto [key, control] = AnyOf(keys);
    if (control.startsWith("txt") && !form->IsEnabled(control))
    {
        return control + " is disabled";
    }
    const auto refusal = RefusalOnLeaving(control, false);
    const QString focus = hands->Focus();
    hands->Press(key, Qt::AltModifier);
    hands->Ready();
    Expect(refusal ? QStringList{Exclamation(*refusal)} : QStringList());
    found.Same("the focus", hands->Focus(), refusal ? focus : control);
    return control;
}
