/// Saving the curve of the current selection: the file, the questions on the way, and what is left behind.

#include "app/mdlPublic.h"
#include "chart/frmGraph.h"
#include "frame/LastFolder.h"
#include "tests/frame/Desk.h"

#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QLocale>
#include <QMdiArea>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <charconv>
#include <cstdlib>

#include <sys/stat.h>

class SaveDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void FileHoldsTheCurveByteForByte_data();
    void FileHoldsTheCurveByteForByte();
    void FileNamesThePartInTheCodeOnDisplay();
    void FileIsTheSameWhateverTheLocaleBesidesItsDate();
    void DateOfTheFileHasDigitsOfItsCodePage_data();
    void DateOfTheFileHasDigitsOfItsCodePage();
    void MessageTellsThePath();
    void OffersPartNumberAsName();
    void NameIsOfferedAsTheFileSystemTakesIt_data();
    void NameIsOfferedAsTheFileSystemTakesIt();
    void CancelLeavesEverythingAsItWas();
    void OverwritingIsAskedFor_data();
    void OverwritingIsAskedFor();
    void FileThatCannotBeWrittenIsTold();
    void RefusedParameterStopsBeforeTheDialog();
    void RefusedConditionStopsBeforeTheDialog();
    void SavingTouchesNoPlottedLine();
    void ChartsOwnEntrySavesTheSelection();

private:
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<QTemporaryDir> settings;
};

void SaveDataTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    settings = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings->path());
}

static QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/// "0.00E+00" of a single, rounded digit by digit on its shortest decimal.
static QByteArray Scientific(float value)
{
    std::array<char, 40> text{};
    const auto* end =
        std::to_chars(text.data(), text.data() + text.size(), std::abs(value), std::chars_format::scientific)
            .ptr;
    const QByteArray shortest(text.data(), end - text.data());
    const auto mark = shortest.indexOf('e');
    int exponent = shortest.mid(mark + 1).toInt();
    const QByteArray digits = shortest.left(mark).replace(".", "").leftJustified(4, '0');
    int whole = digits.left(3).toInt() + (digits[3] >= '5' ? 1 : 0);
    if (whole == 1000)
    {
        whole = 100;
        ++exponent;
    }
    const QByteArray three = QByteArray::number(whole).rightJustified(3, '0');
    return (value < 0 ? "-" : "") + three.left(1) + "." + three.mid(1) + "E" + (exponent < 0 ? "-" : "+") +
           QByteArray::number(std::abs(exponent)).rightJustified(2, '0');
}

/// The data lines of a plotted line.
static QByteArray DataLines(const ChartRecord& line)
{
    QByteArray lines;
    for (std::size_t i = 0; i < 200; ++i)
    {
        const float x = line.XAxisName == "Frequency" ? line.XData[i] / 1000 : line.XData[i];
        lines += Scientific(x) + "            " + Scientific(line.YData[i]) + "\r\n";
    }
    return lines;
}

static QByteArray DateText()
{
    return QLocale().toString(QDate::currentDate(), QLocale::ShortFormat).toLatin1();
}

static QByteArray TitleLine()
{
    return "!Halvex Chip Capacitor Characteristics Data Library  " + DateText() + "\r\n";
}

static void Choose(Desk& desk, int type, const QString& x, const QString& y)
{
    desk.ClickChartType(type);
    desk.PickXAxis(x);
    desk.PickYAxis(y);
    desk.TypePart("KTU155R71H101KA01");
}

static const QByteArray Part = "!Halvex Part Number-> KTU155R71H101KA01 (HC0402X7R101K050)\r\n";

void SaveDataTest::FileHoldsTheCurveByteForByte_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<int>("parameter");
    QTest::addColumn<QByteArray>("head");
    const QByteArray rise = "!ChartType-> Temperature Rise Characteristics\r\n" + Part +
                            "!DC Bias Voltage-> 2.5 [V]\r\n!Heat Resistance-> 123.5 [C/W]\r\n";
    for (const auto& [x, unit] : {std::pair{"Current", "[Arms]"},
                                  {"Voltage", "[Vrms]"},
                                  {"Apparent Power", "[VA]"},
                                  {"Effective Power", "[W]"}})
    {
        QTest::addRow("rise over %s", x)
            << 0 << x << "Temperature Rise" << -1
            << rise + "!Frequency-> 200.25 [kHz]\r\n!Ambient Temperature-> 30 [C]\r\n" + x + unit +
                   "  Temperature Rise[C]\r\n";
    }
    int parameter = 0;
    for (const char* line : {"Current-> 0.0002 [Arms]", "Voltage-> 0.0002 [Vrms]",
                             "Effective Power-> 0.0002 [W]", "Apparent Power-> 0.0002 [VA]"})
    {
        QTest::addRow("rise over frequency, %.7s", line)
            << 0 << "Frequency"
            << "Temperature Rise" << parameter++
            << rise + "!Ambient Temperature-> 30 [C]\r\n!" + line +
                   "\r\nFrequency[kHz]  Temperature Rise[C]\r\n";
    }
    for (const auto& [y, unit] : {std::pair{"Current", "[Arms]"},
                                  {"Voltage", "[Vrms]"},
                                  {"Apparent Power", "[VA]"},
                                  {"Effective Power", "[W]"}})
    {
        QTest::addRow("allowable %s", y)
            << 1 << "Frequency" << y << -1
            << "!ChartType-> Allowable power\r\n" + Part +
                   "!DC Bias Voltage-> 2.5 [V]\r\n!Heat Resistance-> 123.5 [C/W]\r\n"
                   "!Ambient Temperature-> 30 [C]\r\nFrequency[kHz]  " +
                   y + unit + "\r\n";
    }
    for (const auto& [y, unit] : {std::pair{"Capacitance", "[pF]"}, {"Capacitance Change", "[%]"}})
    {
        QTest::addRow("%s over temperature", y)
            << 2 << "Temperature" << y << -1
            << "!ChartType-> Capacitance-Temperature Characteristics\r\n" + Part +
                   "!DC Bias Voltage-> 2.5 [V]\r\nTemperature[C]  " + y + unit + "\r\n";
        QTest::addRow("%s over bias", y)
            << 3 << "DC Bias Voltage" << y << -1
            << "!ChartType-> Capacitance-DC Voltage Characteristics\r\n" + Part +
                   "!Ambient Temperature-> 30 [C]\r\nDC Bias Voltage[V]  " + y + unit + "\r\n";
    }
}

void SaveDataTest::FileHoldsTheCurveByteForByte()
{
    QFETCH(int, type);
    QFETCH(QString, x);
    QFETCH(QString, y);
    QFETCH(int, parameter);
    QFETCH(QByteArray, head);
    Desk desk;
    Choose(desk, type, x, y);
    // The file tells numbers as they are, not as they were typed.
    for (const auto& [box, text] : {std::pair{"txtDCBiasVol", "2.50"},
                                    {"txtHeatResistance", "1.235E2"},
                                    {"txtFrequency", "200.25"},
                                    {"txtAmbientTemp", "030"}})
    {
        if (desk.Find<QLineEdit>(box)->isEnabled())
        {
            desk.Type(box, text);
        }
    }
    if (parameter >= 0)
    {
        desk.ClickParameter(parameter);
        desk.Type("txtParameter", ".0002");
    }
    desk.ClickPlot();
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    desk.SaveAs(folder->filePath("a.tvk"));
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{1});
    const QByteArray file = Contents(folder->filePath("a.tvk"));
    QCOMPARE(file.left(file.indexOf("\r\n", file.indexOf("\r\n" + x.toLatin1()) + 2) + 2),
             TitleLine() + head);
    QCOMPARE(file, TitleLine() + head + DataLines(mdlPublic.Charts.ChartData()[0]));
}

void SaveDataTest::FileNamesThePartInTheCodeOnDisplay()
{
    Desk desk;
    Choose(desk, 2, "Temperature", "Capacitance");
    desk.Type("txtDCBiasVol", "0");
    desk.Choose("mnuPartNum_1");
    QCOMPARE(desk.Find<QComboBox>("cmbPartNum")->currentText(), QString("HC0402X7R101K050"));
    desk.SaveAs(folder->filePath("previous.tvk"));
    QVERIFY(Contents(folder->filePath("previous.tvk")).contains("\r\n" + Part));
    desk.Choose("mnuViewCode_1");
    desk.SaveAs(folder->filePath("jis.tvk"));
    QVERIFY(Contents(folder->filePath("jis.tvk"))
                .contains("\r\n!Halvex Part Number-> KTU155R01H101KA01 (HC1005R101K050)\r\n"));
}

void SaveDataTest::FileIsTheSameWhateverTheLocaleBesidesItsDate()
{
    QByteArrayList bodies;
    for (const auto language : {QLocale::C, QLocale::German, QLocale::Japanese, QLocale::Arabic})
    {
        QLocale::setDefault(QLocale(language));
        Desk desk;
        Choose(desk, 2, "Temperature", "Capacitance");
        desk.Type("txtDCBiasVol", language == QLocale::German ? "2,5" : "2.5");
        const QString path = folder->filePath(QLocale::languageToString(language));
        desk.SaveAs(path);
        const QByteArray file = Contents(path);
        // The date of Arabic has a test of its own.
        QVERIFY(language == QLocale::Arabic || file.startsWith(TitleLine()));
        bodies << file.mid(file.indexOf("\r\n"));
    }
    QCOMPARE(bodies.count(bodies.front()), 4);
    QVERIFY(bodies.front().contains("!DC Bias Voltage-> 2.5 [V]\r\n"));
}

void SaveDataTest::DateOfTheFileHasDigitsOfItsCodePage_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("format");
    QTest::newRow("Egypt, with marks of direction") << QLocale(QLocale::Arabic, QLocale::Egypt) << "d/M/yyyy";
    QTest::newRow("Iran") << QLocale(QLocale::Persian, QLocale::Iran) << "yyyy/M/d";
    QTest::newRow("Burma") << QLocale(QLocale::Burmese, QLocale::Myanmar) << "dd-MM-yy";
    QTest::newRow("Japan") << QLocale(QLocale::Japanese, QLocale::Japan) << "yyyy/MM/dd";
    QTest::newRow("Turkey") << QLocale(QLocale::Turkish, QLocale::Turkey) << "d.MM.yyyy";
}

void SaveDataTest::DateOfTheFileHasDigitsOfItsCodePage()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, format);
    QLocale::setDefault(locale);
    Desk desk;
    Choose(desk, 2, "Temperature", "Capacitance");
    desk.Type("txtDCBiasVol", "0");
    desk.SaveAs(folder->filePath("a.tvk"));
    const QByteArray title = Contents(folder->filePath("a.tvk")).split('\r').front();
    QCOMPARE(title, "!Halvex Chip Capacitor Characteristics Data Library  " +
                        QLocale::c().toString(QDate::currentDate(), format).toLatin1());
}

void SaveDataTest::MessageTellsThePath()
{
    Desk desk;
    Choose(desk, 2, "Temperature", "Capacitance");
    desk.Type("txtDCBiasVol", "0");
    desk.SaveAs(folder->filePath("name without suffix"));
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    QCOMPARE(boxes[0].text, "tavik Data saved to " + folder->filePath("name without suffix"));
    QCOMPARE(boxes[0].icon, QMessageBox::Information);
    // Nothing is added to a typed name.
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files), QStringList{"name without suffix"});
    QVERIFY(IsAtRest());
}

void SaveDataTest::OffersPartNumberAsName()
{
    Desk desk;
    Choose(desk, 2, "Temperature", "Capacitance");
    desk.Type("txtDCBiasVol", "0");
    QCOMPARE(desk.SaveAs("").second, QString("KTU155R71H101KA01.tvk"));
}

void SaveDataTest::NameIsOfferedAsTheFileSystemTakesIt_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("offered");
    QTest::newRow("slash") << QByteArray("KTU/33 R7:E101") << "KTU_33 R7:E101.tvk";
    QTest::newRow("quotes, which the dialog reads") << QByteArray("KTU \"33\" R7") << "KTU _33_ R7.tvk";
    QTest::newRow("home folder") << QByteArray("~root") << "_root.tvk";
}

void SaveDataTest::NameIsOfferedAsTheFileSystemTakesIt()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QString, offered);
    const QTemporaryDir parts;
    QVERIFY(QFile::copy(SAMPLE_RANGE "/halvex.dat", parts.filePath("halvex.dat")));
    QByteArray index = Contents(SAMPLE_RANGE "/halvex.idx");
    index.replace("\"KTU155R71H101KA01\"", name.contains('"') ? name : '"' + name + '"');
    QFile file(parts.filePath("halvex.idx"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(index) == index.size());
    file.close();
    Desk desk(parts.path().toStdString());
    desk.ClickChartType(2);
    desk.TypePart(name);
    desk.Type("txtDCBiasVol", "0");
    QCOMPARE(desk.SaveAs("").second, offered);
}

void SaveDataTest::CancelLeavesEverythingAsItWas()
{
    Desk desk;
    Choose(desk, 2, "Temperature", "Capacitance");
    desk.Type("txtDCBiasVol", "0");
    desk.ClickPlot();
    desk.Type("txtDCBiasVol", "1");
    desk.SaveAs("");
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QVERIFY(StoreIsWhole());
    QVERIFY(IsAtRest());
    QVERIFY(!QDir(settings->filePath("tavik")).exists());
}

void SaveDataTest::OverwritingIsAskedFor_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<bool>("replaced");
    QTest::newRow("yes") << QMessageBox::Yes << true;
    QTest::newRow("no") << QMessageBox::No << false;
}

void SaveDataTest::OverwritingIsAskedFor()
{
    QFETCH(QMessageBox::StandardButton, answer);
    QFETCH(bool, replaced);
    const QString path = folder->filePath("a.tvk");
    {
        QFile old(path);
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write(QByteArray(100000, 'o')) == 100000);
    }
    Desk desk;
    Choose(desk, 2, "Temperature", "Capacitance");
    desk.Type("txtDCBiasVol", "0");
    desk.AnswerBy(answer);
    desk.SaveAs(path);
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{replaced ? 2U : 1U});
    QVERIFY(boxes[0].text.contains("a.tvk"));
    QCOMPARE(Contents(path).startsWith(TitleLine()), replaced);
    QCOMPARE(Contents(path) == QByteArray(100000, 'o'), !replaced);
}

void SaveDataTest::FileThatCannotBeWrittenIsTold()
{
    Desk desk;
    Choose(desk, 2, "Temperature", "Capacitance");
    desk.Type("txtDCBiasVol", "0");
    desk.ClickPlot();
    // No file takes the place of a pipe, not even for the administrator.
    const QString pipe = folder->filePath("a.tvk");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    desk.AnswerBy(QMessageBox::Yes);
    desk.SaveAs(pipe);
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{2});
    QVERIFY(boxes[0].text.contains("a.tvk"));
    QCOMPARE(boxes[1].text, QString("Unexpected Error 75\nPath/File access error"));
    QCOMPARE(boxes[1].icon, QMessageBox::Critical);
    QCOMPARE(boxes[1].title, desk.main->windowTitle());
    // The folder was chosen all the same.
    QCOMPARE(LastFolder(), folder->path());
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QVERIFY(StoreIsWhole());
    QVERIFY(IsAtRest());
}

void SaveDataTest::RefusedParameterStopsBeforeTheDialog()
{
    Desk desk;
    Choose(desk, 0, "Frequency", "Temperature Rise");
    desk.Type("txtDCBiasVol", "0");
    desk.Type("txtAmbientTemp", "25");
    desk.Type("txtParameter", "1E9");
    const auto offered = desk.SaveAs(folder->filePath("a.tvk"));
    QCOMPARE(offered.second, QString());
    const auto boxes = desk.TakeBoxes();
    QCOMPARE(boxes.size(), std::size_t{1});
    QCOMPARE(boxes[0].icon, QMessageBox::Warning);
    QVERIFY(desk.HasFocus("txtParameter"));
    QVERIFY(QDir(folder->path()).isEmpty());
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{0});
    QVERIFY(StoreIsWhole());
}

void SaveDataTest::RefusedConditionStopsBeforeTheDialog()
{
    Desk desk;
    Choose(desk, 2, "Temperature", "Capacitance");
    desk.Type("txtDCBiasVol", "nothing");
    QCOMPARE(desk.SaveAs(folder->filePath("a.tvk")).second, QString());
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{1});
    QVERIFY(desk.HasFocus("txtDCBiasVol"));
    QVERIFY(QDir(folder->path()).isEmpty());
}

void SaveDataTest::SavingTouchesNoPlottedLine()
{
    Desk desk;
    Choose(desk, 2, "Temperature", "Capacitance");
    desk.Type("txtDCBiasVol", "0");
    desk.ClickPlot();
    desk.Type("txtDCBiasVol", "3");
    desk.SaveAs(folder->filePath("a.tvk"));
    desk.TakeBoxes();
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QCOMPARE(mdlPublic.Charts.ChartData()[0].DCBiasVoltage, 0.0F);
    QVERIFY(StoreIsWhole());
    // What was saved was not plotted, and can be.
    desk.ClickPlot();
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{2});
    QCOMPARE(Contents(folder->filePath("a.tvk")).endsWith(DataLines(mdlPublic.Charts.ChartData()[1])), true);
}

void SaveDataTest::ChartsOwnEntrySavesTheSelection()
{
    Desk desk;
    Choose(desk, 2, "Temperature", "Capacitance");
    desk.Type("txtDCBiasVol", "0");
    desk.ClickPlot();
    // The form describes another part, another chart and another condition by now.
    desk.ClickChartType(3);
    desk.PickYAxis("Capacitance Change");
    desk.TypePart("KTU155R71H151KA01");
    QVERIFY(desk.CanPlot());
    desk.Type("txtAmbientTemp", "60");
    desk.Area()->setActiveSubWindow(desk.Charts().front());
    QVERIFY(desk.MenuTitles().contains("&Chart"));
    QCOMPARE(desk.SaveAs(folder->filePath("a.tvk")).second, QString("KTU155R71H151KA01.tvk"));
    const QByteArray file = Contents(folder->filePath("a.tvk"));
    QVERIFY(file.contains("!ChartType-> Capacitance-DC Voltage Characteristics\r\n"));
    QVERIFY(file.contains("!Ambient Temperature-> 60 [C]\r\n"
                          "DC Bias Voltage[V]  Capacitance Change[%]\r\n"));
    QCOMPARE(mdlPublic.Charts.CurrentChart(), std::int16_t{1});
    QVERIFY(!file.contains(DataLines(mdlPublic.Charts.ChartData()[0]).left(60)));
}

QTEST_MAIN(SaveDataTest)
#include "SaveDataTest.moc"
