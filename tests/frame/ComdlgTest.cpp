#include "tests/frame/ComdlgTest.h"

#include "frame/clsComdlg.h"
#include "frame/frmHelp.h"
#include "partdata/RunTimeError.h"
#include "tests/frame/WhenShown.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QFontDatabase>
#include <QFontDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPrinter>
#include <QPushButton>

#include <optional>

static constexpr const char* DataFilter = "tavik Data Files (*.tvk)|*.tvk|All Files (*.*)|*.*|";

/// The error that a call ends with, if any.
static std::optional<RunTimeError> ErrorOf(const std::function<void()>& call)
{
    try
    {
        call();
    }
    catch (const RunTimeError& error)
    {
        return error;
    }
    return std::nullopt;
}

/// Types a name over the proposed one and presses Enter.
static WhenShown::Step TypeName(const QString& name)
{
    return [name](QWidget& dialog)
    {
        auto* const edit = dialog.findChild<QLineEdit*>("fileNameEdit");
        QVERIFY(edit != nullptr);
        // Without a desktop, nothing brings the dialog back after a question.
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
    };
}

/// Answers the question in front with a button, and keeps its text.
static WhenShown::Step Answer(QMessageBox::StandardButton button, QString* text = nullptr)
{
    return [button, text](QWidget& dialog)
    {
        auto* const box = qobject_cast<QMessageBox*>(&dialog);
        QVERIFY(box != nullptr);
        if (text != nullptr)
        {
            *text = box->text();
        }
        QTest::keyClick(box->button(button), Qt::Key_Space);
    };
}

void ComdlgTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

QString ComdlgTest::InFolder(const QString& name) const
{
    return folder->filePath(name);
}

void ComdlgTest::MakeFile(const QString& name) const
{
    QFile file(InFolder(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("data");
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

// File dialogs.

void ComdlgTest::SaveGivesPathAndTitle()
{
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Filter(DataFilter);
    dialog.FilterIndex = 1;
    dialog.FileName = "KTS31.tvk";
    dialog.Flags = 6;
    WhenShown user({[](QWidget& shown)
                    {
                        QCOMPARE(shown.findChild<QLineEdit*>("fileNameEdit")->text(), "KTS31.tvk");
                        Press(Qt::Key_Return)(shown);
                    }});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, InFolder("KTS31.tvk"));
    QCOMPARE(dialog.FileTitle, "KTS31.tvk");
}

void ComdlgTest::SaveAppendsNothingToATypedName()
{
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Filter(DataFilter);
    dialog.FilterIndex = 1;
    WhenShown user({TypeName("plain")});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, InFolder("plain"));
    QCOMPARE(dialog.FileTitle, "plain");
}

void ComdlgTest::SaveAppendsTheDefaultExtension()
{
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.DefaultExt = "tvk";
    WhenShown user({TypeName("plain")});
    dialog.ShowSave();
    QCOMPARE(dialog.FileTitle, "plain.tvk");
}

void ComdlgTest::SaveTakesTheTypedNameWhateverIsMarked()
{
    MakeFile("old.tvk");
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Flags = 2;
    WhenShown user({[&](QWidget& shown)
                    {
                        auto* const list = shown.findChild<QListView*>("listView");
                        list->setCurrentIndex(list->model()->index(0, 0, list->rootIndex()));
                        QCOMPARE(list->currentIndex().data().toString(), "old.tvk");
                        TypeName("old.tvk2")(shown);
                    }});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, InFolder("old.tvk2"));
}

void ComdlgTest::OverwritingIsAskedFor()
{
    MakeFile("old.tvk");
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Flags = 6;
    QString question;
    WhenShown user({TypeName("old.tvk"), Answer(QMessageBox::Yes, &question)});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, InFolder("old.tvk"));
    QVERIFY2(question.contains("old.tvk"), qPrintable(question));
}

void ComdlgTest::RefusedOverwritingGoesBackToTheDialog()
{
    MakeFile("old.tvk");
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Flags = 6;
    WhenShown user({TypeName("old.tvk"), Answer(QMessageBox::No), TypeName("new.tvk")});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, InFolder("new.tvk"));
}

void ComdlgTest::OverwritingIsNotAskedForWithoutTheFlag()
{
    MakeFile("old.tvk");
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Flags = 4;
    WhenShown user({TypeName("old.tvk")});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, InFolder("old.tvk"));
}

void ComdlgTest::OverwritingIsAskedForTheNameWithExtension()
{
    MakeFile("old.tvk");
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Flags = 2;
    dialog.DefaultExt = "tvk";
    QString question;
    WhenShown user({TypeName("old"), Answer(QMessageBox::Yes, &question)});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, InFolder("old.tvk"));
    QVERIFY2(question.contains("old.tvk"), qPrintable(question));
}

void ComdlgTest::SaveInAMissingFolderIsAskedAgain()
{
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    QString told;
    WhenShown user(
        {TypeName("no/such:name?.tvk"), Answer(QMessageBox::Ok, &told), TypeName("such:name?.tvk")});
    dialog.ShowSave();
    QVERIFY2(told.contains("Path does not exist."), qPrintable(told));
    QCOMPARE(dialog.FileTitle, "such:name?.tvk");
}

void ComdlgTest::AVanishedFolderGivesTheCurrentOne()
{
    clsComdlg dialog;
    dialog.InitDir = InFolder("vanished");
    WhenShown user({TypeName("some.tvk")});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, QDir::current().filePath("some.tvk"));
}

void ComdlgTest::FiltersMatchEveryCaseAndNamesWithoutPoint_data()
{
    QTest::addColumn<int>("filterIndex");
    QTest::addColumn<QStringList>("shownNames");
    QTest::newRow("one pattern") << 1 << QStringList{"LOUD.TVK", "quiet.tvk"};
    QTest::newRow("two patterns") << 2 << QStringList{"LOUD.TVK", "notes.txt", "quiet.tvk"};
    QTest::newRow("every file") << 3 << QStringList{"LOUD.TVK", "README", "notes.txt", "quiet.tvk"};
    QTest::newRow("out of range") << 9 << QStringList{"LOUD.TVK", "quiet.tvk"};
}

void ComdlgTest::FiltersMatchEveryCaseAndNamesWithoutPoint()
{
    QFETCH(int, filterIndex);
    QFETCH(QStringList, shownNames);
    for (const auto* name : {"LOUD.TVK", "quiet.tvk", "notes.txt", "README"})
    {
        MakeFile(name);
    }
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Filter("Data|*.tvk|Data and text|*.tvk;*.txt|All Files (*.*)|*.*|");
    dialog.FilterIndex = filterIndex;
    dialog.CancelError = false;
    WhenShown user({[&](QWidget& shown)
                    {
                        const auto* const list = shown.findChild<QListView*>("listView");
                        QStringList names;
                        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                        {
                            names += list->model()->index(row, 0, list->rootIndex()).data().toString();
                        }
                        names.sort();
                        QCOMPARE(names, shownNames);
                    },
                    Press(Qt::Key_Escape)});
    dialog.ShowOpen();
}

void ComdlgTest::TheChosenFilterIsGivenBack()
{
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Filter(DataFilter);
    dialog.FilterIndex = 1;
    WhenShown user({[](QWidget& shown)
                    {
                        auto* const filters = shown.findChild<QComboBox*>("fileTypeCombo");
                        QCOMPARE(filters->itemText(0), "tavik Data Files (*.tvk)");
                        QCOMPARE(filters->itemText(1), "All Files (*.*)");
                        QTest::keyClick(filters, Qt::Key_Down);
                        TypeName("a.tvk")(shown);
                    }});
    dialog.ShowSave();
    QCOMPARE(dialog.FilterIndex, 2);
}

void ComdlgTest::ANameThatDoesNotFitFails_data()
{
    QTest::addColumn<int>("roomBeyondTheName");
    QTest::addColumn<bool>("fits");
    QTest::newRow("name and closing null fit") << 1 << true;
    QTest::newRow("no room for the closing null") << 0 << false;
    QTest::newRow("no room for the name") << -5 << false;
}

void ComdlgTest::ANameThatDoesNotFitFails()
{
    QFETCH(int, roomBeyondTheName);
    QFETCH(bool, fits);
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.MaxFileSize = static_cast<int>(InFolder("name.tvk").size()) + roomBeyondTheName;
    WhenShown user({TypeName("name.tvk")});
    const auto error = ErrorOf([&] { dialog.ShowSave(); });
    QCOMPARE(!error.has_value(), fits);
    if (!fits)
    {
        QCOMPARE(error->Description(),
                 std::string("Error raised with common dialog.\r\nError code = (12291)"));
        QCOMPARE(error->Place(), std::string("COMDLG32.DLL"));
        QCOMPARE(dialog.FileName, QString());
    }
}

void ComdlgTest::OpenGivesTheFile()
{
    MakeFile("old.tvk");
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.DialogTitle = "Open Data";
    WhenShown user({[](QWidget& shown)
                    {
                        QCOMPARE(shown.windowTitle(), "Open Data");
                        TypeName("old.tvk")(shown);
                    }});
    dialog.Action(1);
    QCOMPARE(dialog.FileName, InFolder("old.tvk"));
    QCOMPARE(dialog.FileTitle, "old.tvk");
}

void ComdlgTest::OpenRefusesAMissingFileWithTheFlag()
{
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Flags = 4096;
    WhenShown user({TypeName("none.tvk"), Answer(QMessageBox::Ok), Press(Qt::Key_Escape)});
    const auto error = ErrorOf([&] { dialog.ShowOpen(); });
    QVERIFY(error.has_value());
    QCOMPARE(error->Number(), 65535);
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
