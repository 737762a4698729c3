#include "chart/ChartPictureText.h"

#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "calc/ChartNames.h"
#include "chart/ChartPicture.h"
#include "chart/layout/ChartWords.h"

#include <QAccessibleWidget>

namespace
{

/// Told when it is asked for, so that it always is what the window shows.
class ChartPictureText : public QAccessibleWidget
{
public:
    explicit ChartPictureText(ChartPicture* shownPicture)
        : QAccessibleWidget(shownPicture, QAccessible::Chart)
        , picture(shownPicture)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const ChartView& view = picture->View();
        if (mdlPublic.Charts.CountSameCharts(view.Chart) == 0)
        {
            return QAccessibleWidget::text(kind);
        }
        switch (kind)
        {
        case QAccessible::Name:
            return QString::fromStdString(ChartCaption(view.Chart));
        case QAccessible::Description:
            return Description(view);
        default:
            return QAccessibleWidget::text(kind);
        }
    }

private:
    static QString Description(const ChartView& view)
    {
        QStringList words = {QString::fromStdString(AxesInWords(view))};
        std::size_t number = 0;
        for (const ChartRecord& line : mdlPublic.Charts.Lines())
        {
            if (KeyOf(line) == view.Chart)
            {
                const QString partNum = PartNumText(line.PartDataIndex, GetPartNumForm());
                words << QString::fromStdString(LineInWords(view, line, ++number, partNum.toStdString()));
            }
        }
        return words.join('\n');
    }

    ChartPicture* picture;
};

QAccessibleInterface* TextOf(const QString& className, QObject* object)
{
    auto* picture = qobject_cast<ChartPicture*>(object);
    return picture != nullptr && className == QStringLiteral("ChartPicture") ? new ChartPictureText(picture)
                                                                             : nullptr;
}

} // namespace

void OfferChartPictureText()
{
    // A factory that is there already is not taken in again.
    QAccessible::installFactory(&TextOf);
}
