/// What is taken away from a chart view: pictures, data, and where its dialogs look for files.

#include "app/PartNumText.h"
#include "chart/frmPicture.h"
#include "frame/LastFolder.h"
#include "tests/chart/view/ViewDesk.h"
#include "tests/frame/TypePath.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QImage>
#include <QImageReader>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>

class ViewOutputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { folder = std::make_unique<QTemporaryDir>(); }
    void ACopiedPictureHasTwiceTheScreensResolution();
    void APictureIsSavedInTheSizeThatIsChosen_data();
    void APictureIsSavedInTheSizeThatIsChosen();
    void OtherNamesAreRefusedAndTheDialogStays();
    void TooManyPixelsAreRefused();
    void TheSizeOfPicturesIsKept();
    void DataAreTheCurvesOfAllLines();
    void DataAreWhatTheCommandLineWrites_data();
    void DataAreWhatTheCommandLineWrites();
    void EachDialogStartsInItsOwnLastFolder();
    void WhatCannotBeWrittenIsTold();
    void WithoutAPrinterPrintSaysSo();

private:
    QString InFolder(const QString& name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
    QTemporaryDir settings;
};

/// The user's own last folder is left alone.
void ViewOutputTest::initTestCase()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
}

static WhenShown::Step ChooseSize(int entry, const QSize& own = {})
{
    return [=](QWidget& dialog)
    {
        auto* const sizes = dialog.findChild<QComboBox*>("cmbSize");
        QVERIFY(sizes != nullptr);
        sizes->setCurrentIndex(entry);
        if (own.isValid())
        {
            dialog.findChild<QSpinBox*>("txtWidth")->setValue(own.width());
            dialog.findChild<QSpinBox*>("txtHeight")->setValue(own.height());
        }
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    };
}

void ViewOutputTest::ACopiedPictureHasTwiceTheScreensResolution()
{
    const ViewDesk desk;
    desk.Press(Qt::Key_C, Qt::ControlModifier);
    const QImage picture = QGuiApplication::clipboard()->image();
    QCOMPARE(picture.size(), desk.View()->size() * 2 * desk.View()->devicePixelRatio());
    QCOMPARE(desk.CursorLine(), "Copied");
    // Even white margins, and the curve's blue in between.
    const QRgb white = qRgb(255, 255, 255);
    bool hasBlue = false;
    for (int x = 0; x < picture.width(); ++x)
    {
        QCOMPARE(picture.pixel(x, 3), white);
        QCOMPARE(picture.pixel(x, picture.height() - 4), white);
        hasBlue = hasBlue || picture.pixelColor(x, picture.height() / 2).blue() > 200;
    }
    QVERIFY(hasBlue);
}

void ViewOutputTest::APictureIsSavedInTheSizeThatIsChosen_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QSize>("own");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("1280 x 720") << 1 << QSize() << "chart.png" << QSize(1280, 720);
    QTest::newRow("1920 x 1080, capitals") << 2 << QSize() << "chart.PNG" << QSize(1920, 1080);
    QTest::newRow("A4 in pixels of 300 to the inch") << 4 << QSize() << "chart.png" << QSize(3509, 2481);
    QTest::newRow("own size") << 5 << QSize(300, 400) << "chart.png" << QSize(300, 400);
}

void ViewOutputTest::APictureIsSavedInTheSizeThatIsChosen()
{
    QFETCH(int, entry);
    QFETCH(QSize, own);
    QFETCH(QString, name);
    const ViewDesk desk;
    std::pair<QString, QString> offered;
    const WhenShown user({ChooseSize(entry, own), TypePath(InFolder(name), &offered)});
    desk.Press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(offered.second, "capacitance-temperature.png");
    QTEST(QImageReader(InFolder(name)).size(), "size");
    QVERIFY2(desk.CursorLine().startsWith("Picture saved to "), qPrintable(desk.CursorLine()));
}

void ViewOutputTest::OtherNamesAreRefusedAndTheDialogStays()
{
    ViewDesk desk;
    QString told;
    const WhenShown user({ChooseSize(1), TypePath(InFolder("chart.gif")),
                          [&](QWidget& box)
                          {
                              told = dynamic_cast<QMessageBox&>(box).text();
                              QTest::keyClick(&box, Qt::Key_Return);
                          },
                          TypePath(InFolder("chart.pdf"))});
    desk.desk.StopAnswering();
    desk.Press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY2(told.startsWith(InFolder("chart.gif")) && told.contains(".png, .svg or .pdf"), qPrintable(told));
    QVERIFY(!QFile::exists(InFolder("chart.gif")));
    QFile file(InFolder("chart.pdf"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith("%PDF-"));
}

void ViewOutputTest::TooManyPixelsAreRefused()
{
    frmPicture dialog(QSize(1200, 800), {}, nullptr);
    auto* const ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    QCOMPARE(dialog.Choice().Extent, QSize(1200, 800));
    dialog.findChild<QComboBox*>("cmbSize")->setCurrentIndex(5);
    dialog.findChild<QSpinBox*>("txtWidth")->setValue(8000);
    dialog.findChild<QSpinBox*>("txtHeight")->setValue(8000);
    QVERIFY(ok->isEnabled());
    QCOMPARE(dialog.Choice().Extent, QSize(8000, 8000));
    dialog.findChild<QSpinBox*>("txtHeight")->setValue(8001);
    QVERIFY(!ok->isEnabled());
    QVERIFY(dialog.findChild<QLabel*>("lblRefusal")->text().contains("64 megapixels"));
    dialog.findChild<QSpinBox*>("txtWidth")->setValue(1);
    QCOMPARE(dialog.Choice().Extent.width(), 300);
    dialog.findChild<QSpinBox*>("txtWidth")->setValue(99999);
    QCOMPARE(dialog.Choice().Extent.width(), 16384);
}

void ViewOutputTest::TheSizeOfPicturesIsKept()
{
    const ViewDesk desk;
    {
        const WhenShown user({ChooseSize(5, QSize(640, 480)), TypePath(InFolder("a.png"))});
        desk.Press(Qt::Key_S, Qt::ControlModifier);
    }
    QSize shown;
    const WhenShown user({[&](QWidget& dialog)
                          {
                              shown = {dialog.findChild<QSpinBox*>("txtWidth")->value(),
                                       dialog.findChild<QSpinBox*>("txtHeight")->value()};
                              QTest::keyClick(&dialog, Qt::Key_Escape);
                          }});
    desk.Press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(shown, QSize(640, 480));
}

void ViewOutputTest::DataAreTheCurvesOfAllLines()
{
    const ViewDesk desk(ViewDesk::Kind::RiseOverFrequency, 3);
    std::pair<QString, QString> offered;
    const WhenShown user({TypePath(InFolder("curves.csv"), &offered)});
    desk.Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(offered.second, "temperature-rise.csv");
    QFile file(InFolder("curves.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArrayList blocks = file.readAll().split('\n');
    int numbers = 0;
    QStringList parts;
    for (const QByteArray& line : blocks)
    {
        numbers += !line.isEmpty() && (line[0] >= '0' && line[0] <= '9') ? 1 : 0;
        for (const ViewedLine& shown : desk.Scene().Lines)
        {
            if (line.contains(shown.PartNumber.c_str()))
            {
                parts << QString::fromStdString(shown.PartNumber);
            }
        }
    }
    QCOMPARE(numbers, 600);
    QCOMPARE(parts, (QStringList{NumberOnDisplay("KTS21JB51E106MA01"), NumberOnDisplay("KTS31NB51E106MA01"),
                                 NumberOnDisplay("KTS32XR71E106KA01")}));
}

void ViewOutputTest::DataAreWhatTheCommandLineWrites_data()
{
    using Kind = ViewDesk::Kind;
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("options");
    const auto row = [](const char* name, Kind kind, const char* options)
    { QTest::newRow(name) << static_cast<int>(kind) << QString(options).split(u' '); };
    row("capacitance over temperature", Kind::CapacitanceOverTemperature,
        "--chart capacitance-temperature --dc-bias 12");
    row("capacitance over bias", Kind::CapacitanceOverBias, "--chart capacitance-dc-voltage");
    row("rise over frequency", Kind::RiseOverFrequency,
        "--chart temperature-rise --x Frequency --dc-bias 12 --parameter current=1.5");
    row("allowable power", Kind::AllowablePower, "--chart allowable-power --dc-bias 12");
}

void ViewOutputTest::DataAreWhatTheCommandLineWrites()
{
    QFETCH(int, kind);
    QFETCH(QStringList, options);
    const ViewDesk desk(static_cast<ViewDesk::Kind>(kind), 3);
    QByteArrayList written;
    for (const ViewedLine& line : desk.Scene().Lines)
    {
        QProcess command;
        command.start(TAVIK_CLI,
                      QStringList{"curve", QString::fromStdString(line.PartNumber), "--format", "csv",
                                  "--data", SAMPLE_RANGE, "--code", IsJapaneseDesk() ? "jis" : "eia"} +
                          options);
        QVERIFY(command.waitForFinished());
        QCOMPARE(command.readAllStandardError(), QByteArray());
        written << command.readAllStandardOutput();
    }
    const WhenShown user({TypePath(InFolder("curves.csv"))});
    desk.Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QFile file(InFolder("curves.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), written.join('\n'));
}

void ViewOutputTest::EachDialogStartsInItsOwnLastFolder()
{
    const ViewDesk desk;
    QVERIFY(QDir(folder->path()).mkdir("pictures") && QDir(folder->path()).mkdir("data"));
    const QString kept = LastFolder();
    std::pair<QString, QString> first;
    std::pair<QString, QString> second;
    std::pair<QString, QString> third;
    const auto savePicture = [&](const QString& path, std::pair<QString, QString>& offered)
    {
        const WhenShown user({ChooseSize(1), TypePath(path, &offered)});
        desk.Press(Qt::Key_S, Qt::ControlModifier);
    };
    savePicture(InFolder("pictures/a.png"), first);
    QCOMPARE(first.first, kept);
    {
        const WhenShown user({TypePath(InFolder("data/a.csv"), &second)});
        desk.Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    }
    QCOMPARE(second.first, InFolder("pictures"));
    savePicture(InFolder("pictures/b.png"), third);
    QCOMPARE(third.first, InFolder("pictures"));
    // Only the main window's Save keeps a folder between runs.
    QCOMPARE(LastFolder(), kept);
}

void ViewOutputTest::WhatCannotBeWrittenIsTold()
{
    const ViewDesk desk;
    // A folder in which nobody makes a file.
    const WhenShown user({TypePath("/proc/curves.csv")});
    desk.Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    const QString told = desk.desk.TakeText();
    QVERIFY2(told.startsWith("Unexpected Error "), qPrintable(told));
    QVERIFY(!desk.CursorLine().contains("saved"));
}

void ViewOutputTest::WithoutAPrinterPrintSaysSo()
{
    const ViewDesk desk;
    desk.Press(Qt::Key_P, Qt::ControlModifier);
    QVERIFY(desk.desk.TakeText().contains("There is no printer in this system."));
}

QTEST_MAIN(ViewOutputTest)
#include "ViewOutputTest.moc"
