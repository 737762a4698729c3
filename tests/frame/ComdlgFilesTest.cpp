#include "tests/frame/ComdlgFilesTest.h"

#include "frame/clsComdlg.h"
#include "tests/frame/WhenShown.h"
#include "tests/partdata/ErrorOf.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>

static constexpr const char* DataFilter = "tavik Data Files (*.tvk)|*.tvk|All Files (*.*)|*.*|";

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
        // As typed on any keyboard, also where the letters are none of ASCII.
        edit->insert(name);
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

void ComdlgFilesTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

QString ComdlgFilesTest::InFolder(const QString& name) const
{
    return folder->filePath(name);
}

void ComdlgFilesTest::MakeFile(const QString& name) const
{
    QFile file(InFolder(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("data");
}

void ComdlgFilesTest::SaveGivesPathAndTitle()
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

void ComdlgFilesTest::SaveAppendsNothingToATypedName()
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

void ComdlgFilesTest::SaveAppendsTheDefaultExtension()
{
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.DefaultExt = "tvk";
    WhenShown user({TypeName("plain")});
    dialog.ShowSave();
    QCOMPARE(dialog.FileTitle, "plain.tvk");
}

void ComdlgFilesTest::SaveTakesTheTypedNameWhateverIsMarked()
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

void ComdlgFilesTest::OverwritingIsAskedFor()
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

void ComdlgFilesTest::RefusedOverwritingGoesBackToTheDialog()
{
    MakeFile("old.tvk");
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Flags = 6;
    WhenShown user({TypeName("old.tvk"), Answer(QMessageBox::No), TypeName("new.tvk")});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, InFolder("new.tvk"));
}

void ComdlgFilesTest::OverwritingIsNotAskedForWithoutTheFlag()
{
    MakeFile("old.tvk");
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Flags = 4;
    WhenShown user({TypeName("old.tvk")});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, InFolder("old.tvk"));
}

void ComdlgFilesTest::OverwritingIsAskedForTheNameWithExtension()
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

void ComdlgFilesTest::SaveInAMissingFolderIsAskedAgain()
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

void ComdlgFilesTest::ANameThatDoesNotSuitTheCommandIsAskedAgain()
{
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Refuse = [](const QString& path)
    { return path.endsWith(QStringLiteral(".png")) ? QString() : QStringLiteral("Not a picture."); };
    QString told;
    WhenShown user({TypeName("chart.txt"), Answer(QMessageBox::Ok, &told), TypeName("chart.png")});
    dialog.ShowSave();
    QCOMPARE(told, InFolder("chart.txt") + "\nNot a picture.");
    QCOMPARE(dialog.FileTitle, "chart.png");
}

void ComdlgFilesTest::SaveUnderANameThatIsNoTextIsAskedAgain()
{
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    QString told;
    // Half a pair, and the mark that stands for a byte of another code page.
    WhenShown user({TypeName(QStringLiteral("a") + QChar(0xD83D) + QStringLiteral(".tvk")),
                    Answer(QMessageBox::Ok, &told),
                    TypeName(QStringLiteral("caf") + QChar(QChar::ReplacementCharacter)),
                    Answer(QMessageBox::Ok), TypeName("café 🛈.tvk")});
    dialog.ShowSave();
    QVERIFY2(told.endsWith("\nFile name is not valid.\nPlease enter another name."), qPrintable(told));
    QCOMPARE(dialog.FileTitle, "café 🛈.tvk");
}

void ComdlgFilesTest::AVanishedFolderGivesTheCurrentOne()
{
    clsComdlg dialog;
    dialog.InitDir = InFolder("vanished");
    WhenShown user({TypeName("some.tvk")});
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, QDir::current().filePath("some.tvk"));
}

void ComdlgFilesTest::FiltersMatchEveryCaseAndNamesWithoutPoint_data()
{
    QTest::addColumn<int>("filterIndex");
    QTest::addColumn<QStringList>("shownNames");
    QTest::newRow("one pattern") << 1 << QStringList{"LOUD.TVK", "quiet.tvk"};
    QTest::newRow("two patterns") << 2 << QStringList{"LOUD.TVK", "notes.txt", "quiet.tvk"};
    QTest::newRow("every file") << 3 << QStringList{"LOUD.TVK", "README", "notes.txt", "quiet.tvk"};
    QTest::newRow("out of range") << 9 << QStringList{"LOUD.TVK", "quiet.tvk"};
}

void ComdlgFilesTest::FiltersMatchEveryCaseAndNamesWithoutPoint()
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
                        const auto names = [list]
                        {
                            QStringList sorted;
                            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                            {
                                sorted += list->model()->index(row, 0, list->rootIndex()).data().toString();
                            }
                            sorted.sort();
                            return sorted;
                        };
                        // The folder is read beside the dialog.
                        QTRY_COMPARE(names(), shownNames);
                    },
                    Press(Qt::Key_Escape)});
    dialog.ShowOpen();
}

void ComdlgFilesTest::TheChosenFilterIsGivenBack()
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

void ComdlgFilesTest::ANameThatDoesNotFitFails_data()
{
    QTest::addColumn<int>("roomBeyondTheName");
    QTest::addColumn<bool>("fits");
    QTest::newRow("name and closing null fit") << 1 << true;
    QTest::newRow("no room for the closing null") << 0 << false;
    QTest::newRow("no room for the name") << -5 << false;
}

void ComdlgFilesTest::ANameThatDoesNotFitFails()
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

void ComdlgFilesTest::OpenGivesTheFile()
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

void ComdlgFilesTest::OpenRefusesAMissingFileWithTheFlag()
{
    clsComdlg dialog;
    dialog.InitDir = folder->path();
    dialog.Flags = 4096;
    WhenShown user({TypeName("none.tvk"), Answer(QMessageBox::Ok), Press(Qt::Key_Escape)});
    const auto error = ErrorOf([&] { dialog.ShowOpen(); });
    QVERIFY(error.has_value());
    QCOMPARE(error->Number(), 65535);
}
