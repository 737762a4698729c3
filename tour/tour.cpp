/// The tour: drives the real forms through the main job without a display and saves what the user would see.
///
///     tour FOLDER
///
/// A designer has a 12 V rail with 1.5 A of ripple at 300 kHz and compares three parts.

#include "app/mdlPublic.h"
#include "files/PartLoading.h"
#include "frame/ProgramIcon.h"
#include "frame/frmMain.h"
#include "partdata/RunTimeError.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <array>
#include <iostream>

namespace
{

constexpr std::array<const char*, 3> ComparedParts = {"KTS31NR71E475KA01", "KTS21JB51E106MA01",
                                                      "KTS32XF51E106ZA01"};

/// Room for the selection form and a chart window beside it.
constexpr QSize TourSize(1010, 700);

/// A user at the main window: finds controls by name and works them with keys and clicks.
class User
{
public:
    User(frmMain& mainWindow, const QDir& pictureFolder)
        : window(mainWindow)
        , folder(pictureFolder)
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
        QTest::keyClicks(box, QString::fromLatin1(partNum));
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
    void SaveWindow(const char* name) { Save(window, name); }

    /// The selection form alone.
    void SaveForm(const char* name) { Save(*Find<QWidget>(QStringLiteral("frmLibraryContents")), name); }

    /// The chart window in front, alone.
    void SaveChart(const char* name) { Save(*window.findChild<QMdiArea*>()->activeSubWindow(), name); }

    /// The axis-range dialog of the chart in front.
    void SaveAxisRange(const char* name)
    {
        QTimer::singleShot(0, &window,
                           [this, name]
                           {
                               QWidget* dialog = QApplication::activeModalWidget();
                               Save(*dialog, name);
                               dialog->close();
                           });
        window.findChild<QMdiArea*>()->activeSubWindow()->findChild<QAction*>("mnuChartExpand")->trigger();
    }

    bool AllSaved() const { return allSaved; }

private:
    template <class Control> Control* Find(const QString& name) const
    {
        auto* control = window.findChild<Control*>(name);
        Q_ASSERT(control != nullptr);
        return control;
    }

    void Save(QWidget& widget, const char* name)
    {
        QApplication::processEvents();
        const QString file = folder.filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
        const bool saved = widget.grab().save(file);
        allSaved = allSaved && saved;
        std::cout << (saved ? "saved " : "cannot write ") << file.toStdString() << '\n';
    }

    frmMain& window;
    QDir folder;
    bool allSaved = true;
};

void CompareTemperatureRise(User& user)
{
    for (const char* part : ComparedParts)
    {
        user.TypePart(part);
        user.Enter("txtDCBiasVol", "12");
        user.Enter("txtFrequency", "300");
        if (part == ComparedParts.front())
        {
            user.SaveForm("selection-form");
        }
        user.Plot();
    }
    user.SaveWindow("main-window");
    user.SaveChart("temperature-rise");
    user.SaveAxisRange("axis-range");
}

void CompareAllowablePower(User& user)
{
    user.ChooseChartType(1);
    for (const char* part : ComparedParts)
    {
        user.TypePart(part);
        user.Enter("txtDCBiasVol", "12");
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
        user.Plot();
    }
    user.SaveChart("capacitance-dc-voltage");
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
        frmMain mainWindow;
        // As on a usual desktop: the screen that stands in for a display is small.
        mainWindow.resize(TourSize);
        mainWindow.show();
        User user(mainWindow, QDir(QString::fromLocal8Bit(argv[1])));
        CompareTemperatureRise(user);
        CompareAllowablePower(user);
        CompareCapacitance(user);
        return user.AllSaved() ? 0 : 1;
    }
    catch (const RunTimeError& error)
    {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
