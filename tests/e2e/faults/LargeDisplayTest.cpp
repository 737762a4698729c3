/// The forms on a display of twice the usual resolution: no caption is cut, charts have all its pixels.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "frame/frmAbout.h"
#include "tests/frame/Desk.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QTest>

class LargeDisplayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void NoCaptionIsCut();
    void WindowsStayOnTheScreen();
    void ChartHasAllPixels();
    void CopyHasTwiceTheResolution();
};

void LargeDisplayTest::initTestCase()
{
    QVERIFY2(qGuiApp->devicePixelRatio() == 2.0, "this test runs with QT_SCALE_FACTOR=2");
}

/// Width of a text as drawn; "&" marks a key and is not drawn.
static int WidthOfText(const QWidget* widget, QString text)
{
    int widest = 0;
    for (const QString& line : text.remove('&').split('\n'))
    {
        widest = std::max(widest, widget->fontMetrics().horizontalAdvance(line));
    }
    return widest;
}

/// What is wrong with the room of a widget's caption; empty when it has room enough.
static QString CutCaption(const QWidget* widget)
{
    const QString found =
        QStringLiteral("%1 %2: ").arg(widget->metaObject()->className(), widget->objectName());
    QSize needed;
    if (const auto* label = qobject_cast<const QLabel*>(widget))
    {
        if (label->text().isEmpty())
        {
            return {};
        }
        needed = label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                                   : QSize(WidthOfText(label, label->text()), label->fontMetrics().height());
    }
    else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
    {
        if (button->text().isEmpty())
        {
            return {};
        }
        // A wrapped caption needs height for its lines instead of width.
        needed = button->hasHeightForWidth()
                     ? QSize(0, button->heightForWidth(button->width()))
                     : QSize(WidthOfText(button, button->text()), button->fontMetrics().height());
    }
    else if (const auto* box = qobject_cast<const QGroupBox*>(widget))
    {
        needed = QSize(WidthOfText(box, box->title()), box->fontMetrics().height());
    }
    else if (const auto* list = qobject_cast<const QComboBox*>(widget))
    {
        needed = QSize(WidthOfText(list, list->currentText()) + 20, list->fontMetrics().height());
    }
    const QSize size = widget->size();
    if (needed.width() <= size.width() && needed.height() <= size.height())
    {
        return {};
    }
    return found + QStringLiteral("%1x%2 of %3x%4")
                       .arg(size.width())
                       .arg(size.height())
                       .arg(needed.width())
                       .arg(needed.height());
}

static QString CutCaptions(const QWidget& form)
{
    QStringList cut;
    for (const QWidget* widget : form.findChildren<QWidget*>())
    {
        if (widget->isVisible())
        {
            cut << CutCaption(widget);
        }
    }
    cut.removeAll(QString());
    return cut.join('\n');
}

void LargeDisplayTest::NoCaptionIsCut()
{
    Desk desk;
    QCOMPARE(CutCaptions(*desk.main), QString());
    for (const int type : {0, 1, 2, 3})
    {
        desk.ClickChartType(type);
        QCOMPARE(CutCaptions(*desk.main), QString());
    }
    desk.PlotCapacitance("KTS31NB51E106MA01", "12.5");
    QCOMPARE(CutCaptions(*desk.main), QString());
    frmAbout about;
    about.show();
    QCOMPARE(CutCaptions(about), QString());
}

void LargeDisplayTest::WindowsStayOnTheScreen()
{
    // 800 by 800 pixels are 400 by 400 of those in which the forms are laid out.
    Desk desk;
    const QRect screen = desk.main->screen()->availableGeometry();
    QVERIFY(screen.width() < 1010);
    QVERIFY(desk.main->width() <= screen.width() && desk.main->height() <= screen.height());
}

void LargeDisplayTest::ChartHasAllPixels()
{
    Desk desk;
    desk.PlotCapacitance("KTS31NB51E106MA01", "0");
    const auto charts = desk.Charts();
    QCOMPARE(charts.size(), std::size_t{1});
    auto* picture = charts.front()->findChild<QWidget*>("picGraph");
    const QImage drawn = picture->grab().toImage();
    QCOMPARE(drawn.devicePixelRatio(), 2.0);
    QCOMPARE(drawn.size(), picture->size() * 2);
    // A picture of half the pixels blown up would have each of them four times.
    bool alike = true;
    for (int y = 0; y + 1 < drawn.height() && alike; y += 2)
    {
        for (int x = 0; x + 1 < drawn.width() && alike; x += 2)
        {
            alike = drawn.pixel(x, y) == drawn.pixel(x + 1, y) && drawn.pixel(x, y) == drawn.pixel(x, y + 1);
        }
    }
    QVERIFY(!alike);
}

void LargeDisplayTest::CopyHasTwiceTheResolution()
{
    Desk desk;
    desk.PlotCapacitance("KTS31NB51E106MA01", "0");
    QTest::keyClick(desk.main.get(), Qt::Key_C, Qt::ControlModifier);
    Settle();
    QCOMPARE(QGuiApplication::clipboard()->image().size(), QSize(731, 292) * 4);
}

QTEST_MAIN(LargeDisplayTest)
#include "LargeDisplayTest.moc"
