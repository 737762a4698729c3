/// The tour: drives the real forms through the main job without a display and saves what the user would see.
///
///     tour FOLDER
///
/// A designer has a 12 V rail with 1.5 A of ripple at 300 kHz and compares three parts, once in JIS code,
/// whose pictures have names that end in "-jis", and once in EIA code. The pictures of the help books have
/// twice the pixels of their place on the page.

#include "app/HelpLanguages.h"
#include "app/PartNumText.h"
#include "app/mdlPublic.h"
#include "files/PartLoading.h"
#include "frame/ProgramIcon.h"
#include "frame/frmMain.h"
#include "partdata/RunTimeError.h"
#include "tour/Board.h"
#include "tour/CallOuts.h"
#include "tour/Entries.h"
#include "tour/PictureText.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <utility>

namespace
{

constexpr std::array<const char*, 3> ComparedParts = {"KTS31NR71E475KA01", "KTS21JB51E106MA01",
                                                      "KTS32XF51E106ZA01"};

/// As wide as a picture may be on a page of the help.
constexpr int WidestPlace = 620;

/// Room for the selection form and a chart window beside it.
constexpr QSize TourSize(1010, 700);
/// A chart view that can be read on a page of the help.
constexpr QSize ViewSize(900, 600);
/// The window that finds parts, with room for what a load does.
constexpr QSize FindSize(1150, 560);

/// The window for waveforms, low enough for a printed page beside its text.
constexpr QSize WaveformSize(820, 620);
/// The window that checks boards, with room for its reasons.
constexpr QSize BoardSize(1150, 560);

/// A user at the main window: finds controls by name and works them with keys and clicks.
class User
{
public:
    User(frmMain& mainWindow, const QDir& pictureFolder)
        : window(mainWindow)
        , folder(pictureFolder)
        , nameEnd(GetCodeView() == CodeView::Jis ? "-jis" : "")
    {
    }

    void ChooseChartType(int index)
    {
        QTest::mouseClick(Find<QRadioButton>(QStringLiteral("optChartType_%1").arg(index)), Qt::LeftButton,
                          {}, QPoint(8, 8));
    }

    void TypePart(const char* partNum)
    {
        auto* box = Find<QComboBox>(QStringLiteral("cmbPartNum"));
        box->lineEdit()->selectAll();
        QTest::keyClicks(box, NumberOnDisplay(partNum));
    }

    void Enter(const char* box, const char* entry)
    {
        auto* line = Find<QLineEdit>(QString::fromLatin1(box));
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, QString::fromLatin1(entry));
    }

    void Plot() { QTest::mouseClick(Find<QPushButton>(QStringLiteral("cmdPlot")), Qt::LeftButton); }

    /// The whole window, as it stands.
    void SaveWindow(const char* name) { Save(window.grab(), window, name); }

    /// The selection form alone, down to Plot.
    void SaveForm(const char* name)
    {
        QApplication::processEvents();
        auto* form = Find<QWidget>(QStringLiteral("frmLibraryContents"));
        const auto* last = Find<QPushButton>(QStringLiteral("cmdPlot"));
        Save(PictureForHelp(
                 *form, {form->width(), last->geometry().bottom() + 3},
                 {"fraChartType", "fraSelection", "fraAxes", "fraCondition", "fraParameter", "cmdPlot"}),
             *form, name);
    }

    /// The chart window in front, alone.
    void SaveChart(const char* name, const QStringList& calledOut = {})
    {
        QWidget& chart = *window.findChild<QMdiArea*>()->activeSubWindow();
        Save(PictureForHelp(chart, chart.size(), calledOut), chart, name);
    }

    /// The axis-range dialog of the chart in front.
    void SaveAxisRange(const char* name)
    {
        QTimer::singleShot(0, &window,
                           [this, name]
                           {
                               QWidget* dialog = QApplication::activeModalWidget();
                               Save(PictureForHelp(*dialog, dialog->size()), *dialog, name);
                               dialog->close();
                           });
        window.findChild<QMdiArea*>()->activeSubWindow()->findChild<QAction*>("mnuChartExpand")->trigger();
    }

    /// The view of the chart in front, with its cursor at an X.
    void SaveView(const char* x, const char* name)
    {
        QApplication::setActiveWindow(&window);
        QTest::keyClick(window.findChild<QMdiArea*>()->activeSubWindow(), Qt::Key_E, Qt::ControlModifier);
        for (QWidget* view : QApplication::topLevelWidgets())
        {
            if (view->objectName() == u"frmChartView")
            {
                view->resize(ViewSize);
                auto* entry = view->findChild<QLineEdit*>(QStringLiteral("txtCursorX"));
                entry->selectAll();
                QTest::keyClicks(entry, QString::fromLatin1(x));
                QTest::keyClick(entry, Qt::Key_Return);
                // One cursor is enough for a picture.
                QTest::keyClick(view->focusWidget(), Qt::Key_Escape);
                Save(PictureForHelp(*view, view->size()), *view, name);
                view->close();
                return;
            }
        }
        allSaved = false;
    }

    /// The window that finds parts, asked for 10 µF that run less than 20 °C hot.
    void SaveFind(const char* name)
    {
        Find<QToolButton>(QStringLiteral("cmdFind"))->click();
        for (QWidget* find : QApplication::topLevelWidgets())
        {
            if (find->objectName() == u"frmFind")
            {
                EnterAll(*find, FindEntries);
                find->resize(FindSize);
                Save(PictureForHelp(*find, find->size()), *find, name);
                SaveWaveform(*find, "waveform");
                find->close();
                return;
            }
        }
        allSaved = false;
    }

    /// The window that checks boards, with a part of the board that fails.
    void SaveBoard(const char* name)
    {
        // Short names in the boxes, wherever the pictures go.
        const QString former = QDir::currentPath();
        QDir::setCurrent(folder.path());
        QString bill = QString::fromLatin1(BoardBill);
        for (const char* part : BoardParts)
        {
            bill = bill.arg(NumberOnDisplay(part));
        }
        Write(QStringLiteral("board.csv"), bill.toUtf8());
        Write(QStringLiteral("rails.csv"), BoardRails);
        window.findChild<QAction*>(QStringLiteral("mnuCheckBom"))->trigger();
        const auto tops = QApplication::topLevelWidgets();
        const auto board = std::ranges::find(tops, QStringLiteral("frmBom"), &QWidget::objectName);
        allSaved = allSaved && board != tops.end() && FillBoard(**board);
        if (board != tops.end())
        {
            Save(PictureForHelp(**board, (*board)->size()), **board, name);
            (*board)->close();
        }
        QDir::setCurrent(former);
    }

    bool AllSaved() const { return allSaved; }

private:
    /// The window before the search that makes a sine of a converter's current.
    void SaveWaveform(const QWidget& find, const char* name)
    {
        find.findChild<QPushButton*>(QStringLiteral("cmdFindWaveform"))->click();
        auto* waveform = find.findChild<QDialog*>(QStringLiteral("frmWaveform"));
        waveform->findChild<QTabWidget*>(QStringLiteral("tabWaveform"))->setCurrentIndex(1);
        EnterAll(*waveform, ConverterEntries);
        waveform->resize(WaveformSize);
        Save(PictureForHelp(*waveform, waveform->size()), *waveform, name);
        waveform->close();
    }

    template <class Control> Control* Find(const QString& name) const
    {
        auto* control = window.findChild<Control*>(name);
        Q_ASSERT(control != nullptr);
        return control;
    }

    void Write(const QString& name, const QByteArray& text)
    {
        QFile file(folder.filePath(name));
        allSaved = allSaved && file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    }

    /// False where the verdicts do not come.
    static bool FillBoard(QWidget& board)
    {
        board.resize(BoardSize);
        for (const auto& [box, file] :
             {std::pair("txtBomConditions", "rails.csv"), std::pair("txtBomFile", "board.csv")})
        {
            auto* entry = board.findChild<QLineEdit*>(QString::fromLatin1(box));
            entry->setText(QString::fromLatin1(file));
            QTest::keyClick(entry, Qt::Key_Return);
        }
        auto* rows = board.findChild<QTableView*>(QStringLiteral("tblBom"));
        // The first row fails; what would pass in its place is told last.
        const bool isRead = QTest::qWaitFor(
            [&]
            {
                const auto* told = rows->model();
                return told->index(0, told->columnCount() - 1).data().toString().contains(u"; try ");
            });
        rows->selectRow(0);
        // Rows of entries that come and go are laid out a few events later.
        constexpr int restMilliSeconds = 100;
        QTest::qWait(restMilliSeconds);
        return isRead;
    }

    /// The number of a part in the code on display, by its global EIA number.
    static QString NumberOnDisplay(const char* partNum)
    {
        return PartNumText(*mdlPublic.Parts.PartIndex[0].Find(partNum), GetPartNumForm());
    }

    /// The upper left part of a widget, drawn with twice the pixels that its place on a page of the help has.
    static QPixmap PictureForHelp(QWidget& widget, const QSize& part, const QStringList& calledOut = {})
    {
        QApplication::processEvents();
        const double scale = std::min(1.0, double{WidestPlace} / part.width());
        const QSize place(qRound(part.width() * scale), static_cast<int>(std::ceil(part.height() * scale)));
        QPixmap picture(2 * place);
        picture.fill(Qt::white);
        picture.setDevicePixelRatio(2 * scale);
        widget.render(&picture, {}, QRect({}, part));
        picture.setDevicePixelRatio(1);
        DrawCallOuts(picture, widget, calledOut, 2 * scale, 2);
        return picture;
    }

    /// The picture, and beside it what it says.
    void Save(const QPixmap& picture, QWidget& shown, const char* name)
    {
        const QString file = folder.filePath(QLatin1String(name) + QLatin1String(nameEnd));
        QFile text(file + QStringLiteral(".txt"));
        const bool saved = picture.save(file + QStringLiteral(".png")) && text.open(QIODevice::WriteOnly) &&
                           text.write(PictureText(shown, picture.size()).toUtf8()) >= 0;
        allSaved = allSaved && saved;
        std::cout << (saved ? "saved " : "cannot write ") << file.toStdString() << ".png\n";
    }

    frmMain& window;
    QDir folder;
    const char* nameEnd;
    bool allSaved = true;
};

void CompareTemperatureRise(User& user)
{
    for (const char* part : ComparedParts)
    {
        user.TypePart(part);
        user.Enter("txtDCBiasVol", "12");
        user.Enter("txtFrequency", "300");
        user.Enter("txtAmbientTemp", "25");
        if (part == ComparedParts.front())
        {
            user.SaveForm("selection-form");
        }
        user.Plot();
    }
    user.SaveWindow("main-window");
    user.SaveChart("temperature-rise", {"picGraph", "fraStatus_3", "sbr1"});
    user.SaveAxisRange("axis-range");
    user.SaveView("1.5", "chart-view");
}

void CompareAllowablePower(User& user)
{
    user.ChooseChartType(1);
    for (const char* part : ComparedParts)
    {
        user.TypePart(part);
        user.Enter("txtDCBiasVol", "12");
        user.Enter("txtAmbientTemp", "25");
        user.Plot();
    }
    user.SaveChart("allowable-power");
}

void CompareCapacitance(User& user)
{
    user.ChooseChartType(2);
    for (const char* part : ComparedParts)
    {
        user.TypePart(part);
        user.Enter("txtDCBiasVol", "12");
        user.Plot();
    }
    user.SaveChart("capacitance-temperature");

    user.ChooseChartType(3);
    for (const char* part : ComparedParts)
    {
        user.TypePart(part);
        user.Enter("txtAmbientTemp", "25");
        user.Plot();
    }
    user.SaveChart("capacitance-dc-voltage");
}

/// The whole job in a window of its own; false where a picture could not be written.
bool CompareInLanguage(std::int16_t helpLanguage, const QDir& folder)
{
    mdlPublic.HelpLanguage = helpLanguage;
    mdlPublic.Charts = ChartStore{};
    frmMain mainWindow;
    // As on a usual desktop: the screen that stands in for a display is small.
    mainWindow.resize(TourSize);
    mainWindow.show();
    User user(mainWindow, folder);
    CompareTemperatureRise(user);
    CompareAllowablePower(user);
    CompareCapacitance(user);
    user.SaveFind("find-parts");
    user.SaveBoard("board-window");
    return user.AllSaved();
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setWindowIcon(ProgramIcon());
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1])))
    {
        std::cerr << "usage: tour FOLDER\n";
        return 2;
    }
    try
    {
        mdlPublic.Parts = LoadPartData(QApplication::applicationDirPath().toStdString());
        mdlPublic.DegreeSign = "\xB0";
        // Whole, since the tour works in this folder for a while.
        const QDir folder(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
        bool allSaved = true;
        for (const HelpLanguageRow& language : HelpLanguages)
        {
            allSaved = CompareInLanguage(language.Number, folder) && allSaved;
        }
        return allSaved ? 0 : 1;
    }
    catch (const RunTimeError& error)
    {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
