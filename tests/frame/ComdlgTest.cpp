#include "tests/frame/ComdlgTest.h"

#include "frame/clsComdlg.h"
#include "frame/frmHelp.h"
#include "tests/frame/WhenShown.h"
#include "tests/partdata/ErrorOf.h"

#include <QColorDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QPrinter>

static constexpr const char* DataFilter = "tavik Data Files (*.tvk)|*.tvk|All Files (*.*)|*.*|";

void ComdlgTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

QString ComdlgTest::InFolder(const QString& name) const
{
    return folder->filePath(name);
}

// Properties.

void ComdlgTest::StartsWithTheDefaults()
{
    const clsComdlg dialog;
    QCOMPARE(dialog.Filter(), QString());
    QCOMPARE(dialog.FilterIndex, 0);
    QCOMPARE(dialog.InitDir, QString());
    QCOMPARE(dialog.FileName, QString());
    QCOMPARE(dialog.FileTitle, QString());
    QCOMPARE(dialog.DialogTitle, QString());
    QCOMPARE(dialog.Flags, 0);
    QCOMPARE(dialog.MaxFileSize, 1024);
    QCOMPARE(dialog.DefaultExt, QString());
    QCOMPARE(dialog.CancelError, true);
    QCOMPARE(dialog.hWndOwner, nullptr);
    QCOMPARE(dialog.hdc(), std::intptr_t{0});
    QCOMPARE(dialog.Copies, 0);
    QCOMPARE(dialog.FromPage, 0);
    QCOMPARE(dialog.ToPage, 0);
    QCOMPARE(dialog.Min, 0);
    QCOMPARE(dialog.Max, 0);
    QCOMPARE(dialog.PrinterDefault, true);
    QCOMPARE(dialog.HelpCommand, 0);
    QCOMPARE(dialog.HelpContext, 0);
    QCOMPARE(dialog.HelpFile, QString());
    QCOMPARE(dialog.HelpKey, QString());
    QCOMPARE(dialog.Color, 0);

    const auto system = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    QCOMPARE(dialog.FontName, system.family());
    QVERIFY(qAbs(dialog.FontSize() - system.pointSizeF()) <= 0.05);
    QCOMPARE(dialog.FontBold, system.bold());
    QCOMPARE(dialog.FontItalic, system.italic());
    QCOMPARE(dialog.FontStrikethru, false);
    QCOMPARE(dialog.FontUnderline, false);
}

void ComdlgTest::FilterKeepsTheBarForm_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("returned");
    QTest::newRow("two filters") << DataFilter << DataFilter;
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("the last bar is added") << "Text|*.txt"
                                           << "Text|*.txt|";
}

void ComdlgTest::FilterKeepsTheBarForm()
{
    QFETCH(QString, given);
    QFETCH(QString, returned);
    clsComdlg dialog;
    dialog.Filter(given);
    QCOMPARE(dialog.Filter(), returned);
}

void ComdlgTest::FontSizeIsKeptInTenths_data()
{
    QTest::addColumn<float>("given");
    QTest::addColumn<float>("returned");
    QTest::newRow("whole") << 12.0F << 12.0F;
    QTest::newRow("a tenth") << 8.3F << 8.3F;
    QTest::newRow("finer is rounded") << 9.26F << 9.3F;
    QTest::newRow("nothing") << 0.0F << 0.0F;
}

void ComdlgTest::FontSizeIsKeptInTenths()
{
    QFETCH(float, given);
    QFETCH(float, returned);
    clsComdlg dialog;
    dialog.FontSize(given);
    QCOMPARE(dialog.FontSize(), returned);
}

// Font and colour dialogs.

void ComdlgTest::FontIsGivenBack()
{
    clsComdlg dialog;
    dialog.FontName = "Liberation Sans";
    dialog.FontSize(9);
    dialog.FontBold = true;
    WhenShown user({[](QWidget& shown)
                    {
                        auto& fonts = dynamic_cast<QFontDialog&>(shown);
                        QCOMPARE(fonts.currentFont().pointSize(), 9);
                        QVERIFY(fonts.currentFont().bold());
                        QFont other("Liberation Serif", 14);
                        other.setItalic(true);
                        other.setUnderline(true);
                        other.setStrikeOut(true);
                        fonts.setCurrentFont(other);
                        QTest::keyClick(&fonts, Qt::Key_Return);
                    }});
    dialog.Action(4);
    QCOMPARE(dialog.FontName, "Liberation Serif");
    QCOMPARE(dialog.FontSize(), 14.0F);
    QVERIFY(dialog.FontItalic && dialog.FontUnderline && dialog.FontStrikethru && !dialog.FontBold);
}

void ComdlgTest::ColorIsGivenBack()
{
    clsComdlg dialog;
    dialog.Color = 0x0000FF;
    WhenShown user({[](QWidget& shown)
                    {
                        auto& colors = dynamic_cast<QColorDialog&>(shown);
                        QCOMPARE(colors.currentColor(), QColor(255, 0, 0));
                        colors.setCurrentColor(QColor(0x12, 0x34, 0x56));
                        QTest::keyClick(&colors, Qt::Key_Return);
                    }});
    dialog.Action(3);
    QCOMPARE(dialog.Color, 0x563412);
}

// Errors.

void ComdlgTest::CancelIsAnError_data()
{
    QTest::addColumn<int>("action");
    QTest::newRow("open") << 1;
    QTest::newRow("save") << 2;
    QTest::newRow("colour") << 3;
    QTest::newRow("font") << 4;
}

void ComdlgTest::CancelIsAnError()
{
    QFETCH(int, action);
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.FileName = "kept.tvk";
    WhenShown user({Press(Qt::Key_Escape)});
    const auto error = ErrorOf([&] { dialog.Action(action); });
    QVERIFY(error.has_value());
    QCOMPARE(error->Number(), 65535);
    QCOMPARE(error->Description(), std::string("Cancel button is clicked."));
    QCOMPARE(error->Place(), std::string("COMDLG32.DLL"));
    QCOMPARE(dialog.FileName, "kept.tvk");
}

void ComdlgTest::CancelIsSilentWithoutCancelError_data()
{
    CancelIsAnError_data();
}

void ComdlgTest::CancelIsSilentWithoutCancelError()
{
    QFETCH(int, action);
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.CancelError = false;
    WhenShown user({Press(Qt::Key_Escape)});
    QVERIFY(!ErrorOf([&] { dialog.Action(action); }).has_value());
    QCOMPARE(dialog.FileName, QString());
}

void ComdlgTest::WithoutPrinterIsAnError()
{
    QPrinter printer;
    clsComdlg dialog(&printer);
    WhenShown nobody({});
    const auto error = ErrorOf([&] { dialog.Action(5); });
    QVERIFY(error.has_value());
    QCOMPARE(error->Description(), std::string("There is no printer in this system."));
}

void ComdlgTest::UnknownActionsAreErrors_data()
{
    QTest::addColumn<int>("action");
    for (const int action : {-1, 0, 7, 65536})
    {
        QTest::addRow("%d", action) << action;
    }
}

void ComdlgTest::UnknownActionsAreErrors()
{
    QFETCH(int, action);
    clsComdlg dialog;
    const auto error = ErrorOf([&] { dialog.Action(action); });
    QVERIFY(error.has_value());
    QCOMPARE(error->Description(), std::string("This action is not supported."));
    QCOMPARE(error->Place(), std::string("clsCOMDLG"));
}

void ComdlgTest::HelpActionOpensTheBook()
{
    QFile book(InFolder("book.hlp"));
    QVERIFY(book.open(QIODevice::WriteOnly));
    book.write("<html><body><p>bias bias</p></body></html>");
    book.close();

    clsComdlg dialog;
    dialog.HelpFile = book.fileName();
    dialog.HelpCommand = 257;
    dialog.HelpKey = "bias";
    dialog.Action(6);
    const auto viewers = []
    {
        int count = 0;
        for (const auto* widget : QApplication::topLevelWidgets())
        {
            count += qobject_cast<const frmHelp*>(widget) != nullptr ? 1 : 0;
        }
        return count;
    };
    QCOMPARE(viewers(), 1);
    dialog.HelpCommand = 2;
    dialog.Action(6);
    QCOMPARE(viewers(), 0);
}
