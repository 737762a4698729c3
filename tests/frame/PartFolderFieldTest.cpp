/// The field of the main window that names the folder of the part files.

#include "tests/frame/Desk.h"

#include <QDir>
#include <QLabel>
#include <QStatusBar>
#include <QTest>

class PartFolderFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StandsOnlyWhereAFolderIsNamed();
    void NamesTheWholeFolderAsPlainText_data();
    void NamesTheWholeFolderAsPlainText();
    void StandsAtTheRight();
    void LongNameLeavesTheWindowNarrow();
};

static QLabel* FieldOf(const Desk& desk)
{
    return desk.Find<QLabel>("lblPartFolder");
}

void PartFolderFieldTest::StandsOnlyWhereAFolderIsNamed()
{
    const Desk desk;
    QVERIFY(FieldOf(desk) == nullptr);
    const QString title = desk.main->windowTitle();
    desk.main->ShowPartFolder("/parts");
    QVERIFY(FieldOf(desk) != nullptr);
    QCOMPARE(desk.main->windowTitle(), title);
}

void PartFolderFieldTest::NamesTheWholeFolderAsPlainText_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("shown");
    QTest::newRow("absolute") << "/home/user/parts"
                              << "/home/user/parts";
    QTest::newRow("with a slash behind") << "/home/user/parts/"
                                         << "/home/user/parts";
    QTest::newRow("here") << "." << QDir::currentPath();
    QTest::newRow("relative") << "a/../b" << QDir::currentPath() + "/b";
    QTest::newRow("like a page") << "/<h1>x<img src=y>"
                                 << "/<h1>x<img src=y>";
    QTest::newRow("with a line break") << "/a\nb"
                                       << "/a\\x0Ab";
}

void PartFolderFieldTest::NamesTheWholeFolderAsPlainText()
{
    QFETCH(QString, folder);
    QFETCH(QString, shown);
    const Desk desk;
    desk.main->ShowPartFolder(folder);
    QCOMPARE(FieldOf(desk)->text(), shown);
    QCOMPARE(FieldOf(desk)->textFormat(), Qt::PlainText);
}

void PartFolderFieldTest::StandsAtTheRight()
{
    const Desk desk;
    desk.main->ShowPartFolder("/parts");
    auto* bar = desk.Find<QStatusBar>("sbrMain");
    // A passing message leaves it alone.
    bar->showMessage("message");
    Settle();
    const QLabel* field = FieldOf(desk);
    QVERIFY(field->isVisible());
    QVERIFY(field->mapTo(bar, field->rect().center()).x() > bar->width() / 2);
    QVERIFY(field->width() >= field->fontMetrics().horizontalAdvance(field->text()));
}

void PartFolderFieldTest::LongNameLeavesTheWindowNarrow()
{
    const Desk desk;
    const int least = desk.main->minimumSizeHint().width();
    desk.main->ShowPartFolder("/" + QString(500, 'x'));
    Settle();
    QVERIFY(desk.main->minimumSizeHint().width() <= std::max(least, 300));
    QVERIFY(FieldOf(desk)->width() <= desk.main->width());
}

QTEST_MAIN(PartFolderFieldTest)
#include "PartFolderFieldTest.moc"
