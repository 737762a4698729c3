/// How the random user saves and prints, and opens help and the about box.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "tests/frame/randomuser/PlainSavedFile.h"
#include "tests/frame/randomuser/User.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <sys/stat.h>

static const QString NoPrinter = Critical("Unexpected Error 65534\nThere is no printer in this system.");

static QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

// ---- Saving ----

/// What must be told when a path is chosen: questions of the file dialog, and what comes of the saving.
struct SaveOutcome
{
    bool Asks = false;
    bool Saves = false;
    bool RemembersFolder = false;
    QStringList Told;
};

static SaveOutcome OutcomeOf(const QString& path, bool exists, bool replace)
{
    if (path.isEmpty())
    {
        return {};
    }
    if (!QFileInfo(path).dir().exists())
    {
        return {.Told = {
                    Exclamation(path + "\nPath does not exist.\nPlease verify the correct path was given.")}};
    }
    if (exists && !replace)
    {
        return {.Asks = true, .Told = {}};
    }
    if (path.endsWith("pipe"))
    {
        return {.Asks = exists,
                .RemembersFolder = true,
                .Told = {Critical("Unexpected Error 75\nPath/File access error")}};
    }
    return {.Asks = exists,
            .Saves = true,
            .RemembersFolder = true,
            .Told = {Information("tavik Data saved to " + path)}};
}

/// Saves under a new or an old name, into a pipe, into a folder that is not there, or cancels.
QString User::Save()
{
    static const QStringList names = {"one.tvk", "two.tvk", "sub/three.tvk",
                                      QStringLiteral("\u00E4\u30B3.tvk"), "without suffix"};
    QDir(files.path()).mkdir("sub");
    mkfifo(QFile::encodeName(files.filePath("pipe")).constData(), 0600);
    const int way = Lot(8);
    const QString path = way == 0   ? QString()
                         : way == 1 ? files.filePath("pipe")
                         : way == 2 ? files.filePath("nowhere/four.tvk")
                                    : files.filePath(AnyOf(names));
    const bool replace = Chance(60);
    const SaveOutcome outcome = OutcomeOf(path, QFile::exists(path), replace);
    hands->AnswerBy(replace ? QMessageBox::Yes : QMessageBox::No);
    const auto offered = hands->SaveAs(path);
    hands->AnswerBy(QMessageBox::NoButton);
    hands->Ready();
    if (!form->CanPlot)
    {
        found.Same("a dialog without a part", offered.second, QString());
        return "disabled";
    }
    if (!ChecksPass())
    {
        return "refused";
    }
    const auto line = LineUnlessRefused(form->Asked());
    if (!line)
    {
        return "refused parameter";
    }
    found.Same("the offered name", offered.second, form->PartText + ".tvk");
    found.Same("the offered folder", offered.first, lastFolder);
    // The question of the file dialog is in its own words.
    QStringList told = hands->TakeTold();
    if (outcome.Asks)
    {
        found.Check(!told.empty() && told.takeFirst().contains("already exists"),
                    "nothing asks before a file is replaced");
    }
    found.Same("what was told", told, outcome.Told);
    lastFolder = outcome.RemembersFolder ? QFileInfo(path).path() : lastFolder;
    if (outcome.Saves)
    {
        saved[path] = Contents(path);
        found.Same("what is wrong with the saved file", FaultOf(saved[path], *line, code), QString());
    }
    return path + " " + outcome.Told.join(' ');
}

/// Every saved file is still as it was saved, and nothing lies beside them.
void User::CompareFiles()
{
    for (auto file = saved.cbegin(); file != saved.cend(); ++file)
    {
        found.Check(Contents(file.key()) == file.value(), "a saved file has changed: " + file.key());
    }
    const auto folders = {files.path(), files.filePath("sub")};
    qsizetype count = 0;
    for (const QString& folder : folders)
    {
        count += QDir(folder).entryList(QDir::Files | QDir::Hidden).size();
    }
    found.Same("the number of files", count, saved.size());
}

// ---- Printing ----

/// Does what opens the printer dialog, and prints to a new file or cancels.
QString User::ChoosePrinter(const std::function<void()>& open, bool opens)
{
    const bool accept = Chance(70);
    const QString file = files.filePath(QStringLiteral("print/%1.pdf").arg(comparisons));
    QDir(files.path()).mkdir("print");
    const bool shown = hands->InDialog("QPrintDialog", open,
                                       [&](QDialog& dialog)
                                       {
                                           for (QComboBox* list : dialog.findChildren<QComboBox*>())
                                           {
                                               const int row = list->findText("Print to File (PDF)");
                                               list->setCurrentIndex(row >= 0 ? row : list->currentIndex());
                                               Q_EMIT list->activated(list->currentIndex());
                                           }
                                           if (accept)
                                           {
                                               dialog.findChild<QLineEdit*>("filename")->setText(file);
                                               QTest::keyClick(&dialog, Qt::Key_Return);
                                           }
                                       });
    found.Same("the printer dialog is shown", shown, opens);
    if (shown && accept)
    {
        printFile = file;
        return file;
    }
    return {};
}

/// One page has been printed to the file, which is taken away.
void User::TakePrinted(const QString& file)
{
    const QByteArray pdf = Contents(file);
    found.Check(pdf.startsWith("%PDF") && pdf.contains("%%EOF") && pdf.contains("/Count 1"),
                "not one printed page: " + file);
    QFile::remove(file);
}

/// Presses the key for printing.
static void PressPrint(Hands& hands)
{
    QTest::keyClick(hands.main.get(), Qt::Key_P, Qt::ControlModifier);
    hands.Ready();
}

QString User::PrintData()
{
    QTest::mouseClick(hands->Of("frmLibraryContents"), Qt::LeftButton, {}, QPoint(1, 1));
    Settle();
    // Before a file is chosen the pages would go to the default printer.
    const bool ok = (!HasPrinters() || !printFile.isEmpty()) && Chance(60);
    hands->AnswerBy(ok ? QMessageBox::Ok : QMessageBox::Cancel);
    PressPrint(*hands);
    hands->AnswerBy(QMessageBox::NoButton);
    if (!form->CanPlot || !ChecksPass() || !LineUnlessRefused(form->Asked()))
    {
        return "refused";
    }
    QStringList told = {Question("Would you print " + form->PartText + " Data ?")};
    if (ok && HasPrinters())
    {
        TakePrinted(printFile);
    }
    else if (ok)
    {
        told << NoPrinter;
    }
    Expect(told);
    return form->PartText;
}

QString User::PrintChart()
{
    const PlainWindow* window = AnyWindow();
    if (window == nullptr)
    {
        return "none";
    }
    hands->ClickTitle(Shown(*window));
    const bool ok = Chance(60);
    hands->AnswerBy(ok ? QMessageBox::Ok : QMessageBox::Cancel);
    const QString file = ChoosePrinter([&] { PressPrint(*hands); }, ok && HasPrinters());
    hands->AnswerBy(QMessageBox::NoButton);
    const QString type = window->Caption.left(window->Caption.indexOf('('));
    QStringList told = {Question("Would you print " + type + " Chart ?")};
    if (ok && !HasPrinters())
    {
        told << NoPrinter;
    }
    Expect(told);
    if (!file.isEmpty())
    {
        TakePrinted(file);
    }
    return type + " " + file;
}

QString User::SetUpPage()
{
    if (!ChartIsActive())
    {
        return "no chart is active";
    }
    const QString file = ChoosePrinter([&] { hands->Choose("mnuFilePageSetup"); }, HasPrinters());
    Expect(HasPrinters() ? QStringList() : QStringList{NoPrinter});
    return file;
}

// ---- Help and about ----

QString User::About()
{
    const bool opened = hands->InDialog(
        "frmAbout", [&] { ChooseEither("mnuHelpAbout", "mnuAbout"); },
        [&](QDialog& box)
        {
            found.Same("the title in the about box", box.findChild<QLabel*>("lblTitle")->text(),
                       QString("Halvex Chip Capacitor Characteristics Data Library"));
            found.Same("the number of open forms", hands->main->OpenForms(),
                       static_cast<int>(charts.Windows.size()) + 3);
            if (Chance(50))
            {
                QTest::mouseClick(box.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
            }
        });
    found.Check(opened, "the about box does not open");
    return {};
}

static QWidget* HelpViewer()
{
    for (QWidget* window : QApplication::topLevelWidgets())
    {
        if (window->inherits("frmHelp") && window->isVisible())
        {
            return window;
        }
    }
    return nullptr;
}

/// Opens help where there is no book, or beside the program, where there is one.
QString User::Help()
{
    const bool withBook = Chance(50);
    mdlPublic.PathSep = withBook ? "/" : "/nowhere/";
    ChooseEither("mnuHelpContents", "mnuContents");
    Settle();
    mdlPublic.PathSep = "/nowhere/";
    Expect(withBook ? QStringList() : QStringList{Information("There is no Help File.")});
    QWidget* viewer = HelpViewer();
    found.Same("the help viewer is open", viewer != nullptr, withBook);
    if (viewer != nullptr)
    {
        QApplication::setActiveWindow(viewer);
        QTest::keyClick(viewer, Qt::Key_Escape);
        found.Check(HelpViewer() == nullptr, "the help viewer does not close");
    }
    return withBook ? "with a book" : "without a book";
}
