#include "tests/frame/NoticesTest.h"

#include "frame/ProgramIcon.h"
#include "frame/frmAbout.h"
#include "frame/frmPrinting.h"
#include "tests/frame/WhenShown.h"

#include <QLabel>
#include <QPushButton>

static const auto Title = QStringLiteral("Halvex Chip Capacitor Characteristics Data Library");

void NoticesTest::AboutTellsTitleAndVersion()
{
    const frmAbout about;
    QCOMPARE(about.findChild<QLabel*>("lblTitle")->text(), Title);
    QCOMPARE(about.findChild<QLabel*>("lblVersion")->text(), QStringLiteral("Version " PROGRAM_VERSION));
    QVERIFY(!about.findChild<QLabel*>("picIcon")->pixmap().isNull());
}

void NoticesTest::AboutClosesByItsButton()
{
    frmAbout about;
    WhenShown user({[](QWidget& shown)
                    {
                        auto* const ok = shown.findChild<QPushButton*>("cmdOK");
                        QCOMPARE(ok->text(), "OK");
                        QTest::mouseClick(ok, Qt::LeftButton);
                    }});
    about.exec();
    QVERIFY(!about.isVisible());
}

void NoticesTest::AboutCannotBeResized()
{
    frmAbout about;
    about.show();
    QCOMPARE(about.minimumSize(), about.size());
    QCOMPARE(about.maximumSize(), about.size());
}

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const label = qobject_cast<QLabel*>(watched);
        if (event->type() == QEvent::Paint && label != nullptr && label->objectName() == "lblPrinting")
        {
            ++count;
        }
        return false;
    }
    int count = 0;
};

void NoticesTest::PrintingNoticeIsShownWhileItLives()
{
    PaintCounter paints;
    qApp->installEventFilter(&paints);
    {
        const frmPrinting notice;
        QVERIFY(notice.isVisible());
        QVERIFY(!notice.isModal());
        QCOMPARE(notice.windowTitle(), Title);
        const auto labels = notice.findChildren<QLabel*>();
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.constFirst()->text(), "Now Printing...");
        QCOMPARE(labels.constFirst()->font().family(), "Arial");
        // Painted by now, without the event loop running again.
        QVERIFY(paints.count > 0);
    }
    for (const auto* widget : QApplication::topLevelWidgets())
    {
        QVERIFY(qobject_cast<const frmPrinting*>(widget) == nullptr);
    }
}

void NoticesTest::PrintingNoticeStaysOnEscape()
{
    frmPrinting notice;
    QTest::keyClick(&notice, Qt::Key_Escape);
    QVERIFY(notice.isVisible());
}

void NoticesTest::IconIsDrawnAtEverySize()
{
    for (const int size : {16, 32, 48, 256})
    {
        const auto picture = ProgramIcon().pixmap(size, size).toImage();
        QCOMPARE(picture.size(), QSize(size, size));
        // The middle shows the body, the corner what is behind the icon.
        QCOMPARE(qAlpha(picture.pixel(size / 2, size / 2)), 255);
        QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
    }
}
