#include "chart/ChartAccessible.h"

#include "calc/EngineeringText.h"
#include "chart/layout/CursorTable.h"

#include <QAccessible>

static Quantity XOf(const ViewScene& scene)
{
    return QuantityNamed(scene.View.Chart.XAxisName);
}

static QString AxisText(const ViewScene& scene, double x)
{
    return QString::fromStdString(AxisValueText(XOf(scene), x, scene.View.DegreeSign));
}

/// "Temperature from −75 °C to 125 °C".
static QString AxisTold(const ViewScene& scene, const std::string& name, float from, float to)
{
    const Quantity quantity = QuantityNamed(name);
    const auto text = [&](float value)
    { return QString::fromStdString(AxisValueText(quantity, value, scene.View.DegreeSign)); };
    return QStringLiteral("%1 from %2 to %3").arg(QString::fromStdString(name), text(from), text(to));
}

static QString CursorsTold(const ViewScene& scene)
{
    const ChartCursors& cursors = scene.Cursors;
    const QString a = QStringLiteral("Cursor A at ") + AxisText(scene, cursors.A());
    return cursors.B() ? a + QStringLiteral(", B at ") + AxisText(scene, *cursors.B()) : a;
}

/// "No.2 at 85 °C: 4.372 µF".
static QString ValueTold(const ViewScene& scene)
{
    const int line = scene.Chosen.value_or(0);
    const auto table = CursorTableOf(scene.Lines, scene.Cursors, scene.Code, scene.View.DegreeSign);
    const auto* const value = table.Find(static_cast<std::size_t>(line), CursorColumn::Value);
    return QStringLiteral("No.%1 at %2: %3")
        .arg(line + 1)
        .arg(AxisText(scene, scene.Cursors.Moving()),
             value != nullptr ? QString::fromStdString(value->Text) : QString());
}

static QString Description(const ViewScene& scene)
{
    const auto& view = scene.View;
    const auto lines = scene.Lines.size();
    return QStringList{AxisTold(scene, view.Chart.XAxisName, view.Range.XMin, view.Range.XMax),
                       AxisTold(scene, view.Chart.YAxisName, view.Range.YMin, view.Range.YMax),
                       lines == 1 ? QStringLiteral("1 line") : QStringLiteral("%1 lines").arg(lines),
                       CursorsTold(scene), ValueTold(scene)}
        .join(QStringLiteral(". "));
}

ChartAccessible::ChartAccessible(ChartCanvas* canvas)
    : QAccessibleWidget(canvas, QAccessible::Chart)
{
}

QString ChartAccessible::text(QAccessible::Text kind) const
{
    switch (kind)
    {
    case QAccessible::Name:
        return widget()->window()->windowTitle();
    case QAccessible::Description:
        return Description(Canvas().Scene());
    case QAccessible::Value:
        return AxisText(Canvas().Scene(), Canvas().Scene().Cursors.Moving());
    default:
        return QAccessibleWidget::text(kind);
    }
}

void* ChartAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QVariant ChartAccessible::currentValue() const
{
    const ViewScene& scene = Canvas().Scene();
    return ShownValue(XOf(scene), scene.Cursors.Moving());
}

void ChartAccessible::setCurrentValue(const QVariant& value)
{
    const double unit = KindOf(XOf(Canvas().Scene())).StoredPerShown;
    Q_EMIT Canvas().XAskedFor(value.toDouble() * unit);
}

QVariant ChartAccessible::maximumValue() const
{
    const ViewScene& scene = Canvas().Scene();
    return ShownValue(XOf(scene), scene.View.Range.XMax);
}

QVariant ChartAccessible::minimumValue() const
{
    const ViewScene& scene = Canvas().Scene();
    return ShownValue(XOf(scene), scene.View.Range.XMin);
}

static QAccessibleInterface* Make(const QString& /*className*/, QObject* object)
{
    auto* const canvas = qobject_cast<ChartCanvas*>(object);
    return canvas != nullptr ? new ChartAccessible(canvas) : nullptr;
}

void ChartAccessible::Install()
{
    QAccessible::installFactory(Make);
}

void ChartAccessible::TellChange(ChartCanvas& canvas)
{
    QAccessibleValueChangeEvent value(&canvas, canvas.Scene().Cursors.Moving());
    QAccessible::updateAccessibility(&value);
    QAccessibleEvent description(&canvas, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&description);
}
