/// Simulation models of the parts of a chart, from its panes and from its view.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "simulation/ModelName.h"
#include "tests/chart/view/ViewDesk.h"
#include "tests/frame/TypePath.h"

#include <QGroupBox>
#include <QSettings>
#include <QStatusBar>
#include <QTemporaryDir>

class ViewModelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { folder = std::make_unique<QTemporaryDir>(); }
    void APaneSavesItsPart();
    void TheViewSavesTheChosenLine();
    void TheViewSavesEachPartOnceWhereNoneIsChosen();
    void ACancelledDialogWritesNothing();
    void ARefusalNamesThePart();
    void PartsWithoutCapacitanceDataAreNotOffered();
    void WhatCannotBeWrittenIsTold();

private:
    QString InFolder(const QString& name) const { return folder->filePath(name); }
    QByteArrayList ModelsIn(const QString& name) const;

    std::unique_ptr<QTemporaryDir> folder;
    QTemporaryDir settings;
};

/// The user's own last folder is left alone.
void ViewModelsTest::initTestCase()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
}

/// The names of the models in a file, in order; "(no file)" where there is none.
QByteArrayList ViewModelsTest::ModelsIn(const QString& name) const
{
    QFile file(InFolder(name));
    if (!file.open(QIODevice::ReadOnly))
    {
        return {"(no file)"};
    }
    QByteArrayList names;
    for (const QByteArray& line : file.readAll().split('\n'))
    {
        if (line.startsWith(".SUBCKT "))
        {
            names << line.split(' ').value(1);
        }
    }
    return names;
}

static QByteArray NameOf(const ViewedLine& line)
{
    return QByteArray::fromStdString(ModelName(line.PartNumber));
}

static PartRecord& PartOf(const ViewedLine& line)
{
    return mdlPublic.Parts.PartData.at(static_cast<std::size_t>(line.Line.PartDataIndex));
}

void ViewModelsTest::APaneSavesItsPart()
{
    ViewDesk desk;
    const auto& line = desk.Scene().Lines.at(1);
    auto* const pane = desk.Chart()->findChild<QGroupBox*>("fraStatus_1");
    SendContextMenu(pane, pane->rect().center());
    std::pair<QString, QString> offered;
    {
        const WhenShown user({TypePath(InFolder("part.lib"), &offered)});
        Choose(OpenMenu(), "Save Simulation Model...");
    }
    QCOMPARE(offered.second, QString::fromUtf8(NameOf(line)) + ".lib");
    QCOMPARE(ModelsIn("part.lib"), QByteArrayList{NameOf(line)});
    QCOMPARE(desk.Chart()->findChild<QStatusBar*>("sbr1")->currentMessage(),
             "Model saved to " + InFolder("part.lib"));
}

void ViewModelsTest::TheViewSavesTheChosenLine()
{
    const ViewDesk desk;
    const QRect row = desk.Table()->visualRect(desk.Table()->model()->index(1, 1));
    SendContextMenu(desk.Table()->viewport(), row.center());
    {
        const WhenShown user({TypePath(InFolder("part.lib"))});
        Choose(OpenMenu(), "Save Simulation Model...");
    }
    QCOMPARE(ModelsIn("part.lib"), QByteArrayList{NameOf(desk.Scene().Lines.at(1))});
    QCOMPARE(desk.CursorLine(), "Model saved to " + InFolder("part.lib"));
}

void ViewModelsTest::TheViewSavesEachPartOnceWhereNoneIsChosen()
{
    ViewDesk desk(ViewDesk::Kind::CapacitanceOverTemperature, 2);
    const auto first = NameOf(desk.Scene().Lines.at(0));
    const auto second = NameOf(desk.Scene().Lines.at(1));
    // The first part under another condition.
    desk.desk.TypePart(NumberOnDisplay("KTS21JB51E106MA01"));
    desk.desk.Type("txtDCBiasVol", "1");
    desk.desk.ClickPlot();
    QCOMPARE(desk.Scene().Lines.size(), std::size_t{3});
    desk.Open();
    std::pair<QString, QString> offered;
    {
        const WhenShown user({TypePath(InFolder("all.lib"), &offered)});
        desk.Press(Qt::Key_M, Qt::ControlModifier);
    }
    QCOMPARE(offered.second, "models.lib");
    QCOMPARE(ModelsIn("all.lib"), (QByteArrayList{first, second}));
}

void ViewModelsTest::ACancelledDialogWritesNothing()
{
    const ViewDesk desk;
    const WhenShown user({Press(Qt::Key_Escape)});
    desk.Press(Qt::Key_M, Qt::ControlModifier);
    QVERIFY(!desk.CursorLine().contains("saved"));
    QVERIFY(QDir(folder->path()).isEmpty());
}

void ViewModelsTest::ARefusalNamesThePart()
{
    const ViewDesk desk;
    const auto& line = desk.Scene().Lines.at(1);
    PartRecord& part = PartOf(line);
    const auto kept = part;
    part.Data[Value::BiasV] = -1000;
    desk.Press(Qt::Key_M, Qt::ControlModifier);
    part = kept;
    QCOMPARE(desk.desk.TakeText(),
             QString::fromStdString(line.PartNumber) +
                 ": capacitance not above 0 within its conditions, so there is no simulation model.");
}

void ViewModelsTest::PartsWithoutCapacitanceDataAreNotOffered()
{
    ViewDesk desk(ViewDesk::Kind::AllowablePower, 1);
    PartRecord& part = PartOf(desk.Scene().Lines.front());
    const auto kept = part;
    std::fill(part.Data.begin() + Values::OfCapacitance.First,
              part.Data.begin() + Values::OfCapacitance.Last + 1, 0.0F);
    auto* const pane = desk.Chart()->findChild<QGroupBox*>("fraStatus_0");
    SendContextMenu(pane, pane->rect().center());
    for (const QAction* entry : OpenMenu()->actions())
    {
        QCOMPARE(entry->isEnabled(), PlainTextOf(entry) != "Save Simulation Model...");
    }
    OpenMenu()->close();
    part = kept;
}

void ViewModelsTest::WhatCannotBeWrittenIsTold()
{
    const ViewDesk desk;
    // A folder in which nobody makes a file.
    const WhenShown user({TypePath("/proc/part.lib")});
    desk.Press(Qt::Key_M, Qt::ControlModifier);
    const QString told = desk.desk.TakeText();
    QVERIFY2(told.startsWith("Unexpected Error "), qPrintable(told));
    QVERIFY(!desk.CursorLine().contains("saved"));
}

QTEST_MAIN(ViewModelsTest)
#include "ViewModelsTest.moc"
