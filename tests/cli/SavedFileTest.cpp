/// The data file of the command line and of the window's Save: the same bytes for the same input, and the
/// same refusals.

#include "tests/cli/CommandLine.h"
#include "tests/frame/Desk.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace
{

/// One line as it is typed into the form and on the command line. An empty text is left as the form shows it.
struct Typed
{
    QString Part;
    int ChartType = 0;
    const char* XAxis = "";
    const char* YAxis = "";
    QString DCBias = {};
    QString Frequency = {};
    QString HeatResistance = {};
    QString Ambient = {};
    int Parameter = -1;
    QString ParameterValue = {};
    bool Jis = false;
    bool Previous = false;
};

const QString medium = QStringLiteral("KTS31NB51E106MA01");

const char* const chartNames[] = {"temperature-rise", "allowable-power", "capacitance-temperature",
                                  "capacitance-dc-voltage"};
/// By the number of the parameter button.
const char* const parameterNames[] = {"current", "voltage", "effective-power", "apparent-power"};

QStringList CommandOf(const Typed& typed)
{
    QStringList arguments = {"curve",       typed.Part,
                             "--chart",     chartNames[typed.ChartType],
                             "--x",         typed.XAxis,
                             "--y",         typed.YAxis,
                             "--code",      typed.Jis ? "jis" : "eia",
                             "--numbering", typed.Previous ? "previous" : "global"};
    const auto add = [&](const char* option, const QString& value)
    {
        if (!value.isEmpty())
        {
            arguments << option << value;
        }
    };
    add("--dc-bias", typed.DCBias);
    add("--frequency", typed.Frequency);
    add("--heat-resistance", typed.HeatResistance);
    add("--ambient", typed.Ambient);
    if (typed.Parameter >= 0)
    {
        arguments << "--parameter" << parameterNames[typed.Parameter] + ('=' + typed.ParameterValue);
    }
    return arguments;
}

void TypeIntoForm(Desk& desk, const Typed& typed)
{
    desk.Choose(typed.Jis ? "mnuViewCode_1" : "mnuViewCode_0");
    desk.Choose(typed.Previous ? "mnuPartNum_1" : "mnuPartNum_0");
    desk.ClickChartType(typed.ChartType);
    desk.PickXAxis(typed.XAxis);
    desk.PickYAxis(typed.YAxis);
    desk.TypePart(typed.Part);
    if (typed.Parameter >= 0)
    {
        desk.ClickParameter(typed.Parameter);
    }
    const auto type = [&](const char* box, const QString& text)
    {
        if (!text.isEmpty())
        {
            desk.Type(box, text);
        }
    };
    type("txtDCBiasVol", typed.DCBias);
    type("txtFrequency", typed.Frequency);
    type("txtHeatResistance", typed.HeatResistance);
    type("txtAmbientTemp", typed.Ambient);
    type("txtParameter", typed.ParameterValue);
}

/// Types a name into the save dialog as soon as it is there, and presses Enter.
class SaveDialogAnswer
{
public:
    explicit SaveDialogAnswer(const QString& file)
    {
        timer.setInterval(2);
        QObject::connect(&timer, &QTimer::timeout, &timer,
                         [this, file]
                         {
                             auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                             if (dialog == nullptr || !dialog->isVisible() || answered)
                             {
                                 return;
                             }
                             answered = true;
                             auto* edit = dialog->findChild<QLineEdit*>("fileNameEdit");
                             edit->setText(file);
                             QTest::keyClick(edit, Qt::Key_Return);
                         });
        timer.start();
    }
    bool Answered() const { return answered; }

private:
    QTimer timer;
    bool answered = false;
};

} // namespace

Q_DECLARE_METATYPE(Typed)

class SavedFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void HasTheSameBytes_data();
    void HasTheSameBytes();
    void RefusesTheSameEntries_data();
    void RefusesTheSameEntries();

private:
    QTemporaryDir folder;
};

void SavedFileTest::initTestCase()
{
    QVERIFY(folder.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
}

static void AddRow(const char* name, Typed typed)
{
    for (const bool jis : {false, true})
    {
        typed.Jis = jis;
        QTest::addRow("%s, %s", name, jis ? "JIS" : "EIA") << typed;
    }
}

void SavedFileTest::HasTheSameBytes_data()
{
    QTest::addColumn<Typed>("typed");
    const char* const rise = "Temperature Rise";
    AddRow("rise over current", {medium, 0, "Current", rise, "12", "300"});
    AddRow("rise over voltage", {medium, 0, "Voltage", rise, "0", "10", "50.5"});
    AddRow("rise over apparent power", {medium, 0, "Apparent Power", rise, "25", "1000", "", "60"});
    AddRow("rise over effective power", {medium, 0, "Effective Power", rise, "1e0", "99.95"});
    AddRow("rise at a fixed current", {medium, 0, "Frequency", rise, "12", "", "", "", 0, "1.5"});
    AddRow("rise at a fixed voltage", {medium, 0, "Frequency", rise, "12", "", "", "40", 1, "0.01"});
    AddRow("rise at a fixed effective power", {medium, 0, "Frequency", rise, "12", "", "80", "", 2, "0.25"});
    AddRow("rise at a fixed apparent power", {medium, 0, "Frequency", rise, "12", "", "", "", 3, "0.01"});
    AddRow("allowable current", {medium, 1, "Frequency", "Current", "12"});
    AddRow("allowable voltage", {medium, 1, "Frequency", "Voltage", "24.5", "", "33", "70"});
    AddRow("allowable apparent power", {medium, 1, "Frequency", "Apparent Power", "3"});
    AddRow("allowable effective power", {medium, 1, "Frequency", "Effective Power", "0"});
    AddRow("capacitance over temperature", {medium, 2, "Temperature", "Capacitance", "12"});
    AddRow("change over temperature", {medium, 2, "Temperature", "Capacitance Change", "0"});
    AddRow("capacitance over bias", {medium, 3, "DC Bias Voltage", "Capacitance"});
    AddRow("change over bias", {medium, 3, "DC Bias Voltage", "Capacitance Change", "", "", "", "-10"});
    Typed previous{"HC1206X5R106M025", 2, "Temperature", "Capacitance", "5"};
    previous.Previous = true;
    QTest::newRow("previous part number") << previous;
}

void SavedFileTest::HasTheSameBytes()
{
    QFETCH(const Typed, typed);
    Typed inForm = typed;
    if (typed.Jis && !typed.Previous)
    {
        // The form takes the number as it stands in the code on display.
        const auto list = RunCommandLine({"parts", typed.Part, "--code", "jis", "--format", "csv"}).Output;
        inForm.Part = QString::fromUtf8(list.split('\n').value(1).split(',').value(0));
    }
    const QString file = folder.filePath(QStringLiteral("saved.tvk"));
    QFile::remove(file);

    Desk desk;
    TypeIntoForm(desk, inForm);
    const SaveDialogAnswer answer(file);
    desk.Entry("mnuSaveDataToFile")->trigger();
    QCOMPARE(desk.TakeText(), QStringLiteral("tavik Data saved to ") + file);
    QFile saved(file);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    const auto bytes = saved.readAll();
    QVERIFY(bytes.count("\r\n") > 200);

    const Run run = RunCommandLine(CommandOf(typed));
    QCOMPARE(run.Messages, QByteArray());
    QCOMPARE(run.Status, 0);
    QCOMPARE(run.Output, bytes);
}

/// A row of what the form refuses; a text that is no number is told as a wrong option instead.
static void AddRefusal(const char* name, Typed typed, const QByteArray& noNumber = {})
{
    for (const bool jis : {false, true})
    {
        typed.Jis = jis;
        QTest::addRow("%s, %s", name, jis ? "JIS" : "EIA") << typed << noNumber;
    }
}

void SavedFileTest::RefusesTheSameEntries_data()
{
    QTest::addColumn<Typed>("typed");
    QTest::addColumn<QByteArray>("noNumber");
    const char* const rise = "Temperature Rise";
    AddRefusal("no bias", {medium, 0, "Current", rise, "", "300"});
    AddRefusal("bias above rated", {medium, 0, "Current", rise, "25.01", "300"});
    AddRefusal("bias below 0", {medium, 2, "Temperature", "Capacitance", "-1"});
    AddRefusal("bias no number", {medium, 2, "Temperature", "Capacitance", "five"}, "--dc-bias \"five\"");
    AddRefusal("rated bias of allowable power", {medium, 1, "Frequency", "Current", "25"});
    AddRefusal("frequency too low", {medium, 0, "Current", rise, "5", "9.99"});
    AddRefusal("frequency too high", {medium, 0, "Current", rise, "5", "1000.1"});
    AddRefusal("no frequency", {medium, 0, "Current", rise, "5"});
    AddRefusal("heat resistance 0", {medium, 1, "Frequency", "Current", "5", "", "0"});
    AddRefusal("ambient too low", {medium, 1, "Frequency", "Current", "5", "", "", "19.9"});
    AddRefusal("ambient too high", {medium, 0, "Current", rise, "5", "100", "", "86"});
    AddRefusal("ambient of the characteristic",
               {medium, 3, "DC Bias Voltage", "Capacitance", "", "", "", "-55.5"});
    AddRefusal("parameter too large", {medium, 0, "Frequency", rise, "5", "", "", "", 0, "99"});
    AddRefusal("no parameter", {medium, 0, "Frequency", rise, "5", "", "", "", 2, ""}, "--parameter \"\"");
    AddRefusal("bias before ambient", {medium, 1, "Frequency", "Current", "99", "", "0", "-300"});
}

void SavedFileTest::RefusesTheSameEntries()
{
    QFETCH(const Typed, typed);
    Typed inForm = typed;
    if (typed.Jis)
    {
        const auto list = RunCommandLine({"parts", typed.Part, "--code", "jis", "--format", "csv"}).Output;
        inForm.Part = QString::fromUtf8(list.split('\n').value(1).split(',').value(0));
    }
    Desk desk;
    TypeIntoForm(desk, inForm);
    desk.TakeBoxes();
    const SaveDialogAnswer answer(folder.filePath(QStringLiteral("refused.tvk")));
    desk.Entry("mnuSaveDataToFile")->trigger();
    QVERIFY(!answer.Answered());
    const QString message = desk.TakeText();

    const QString file = folder.filePath(QStringLiteral("none.tvk"));
    const Run run = RunCommandLine(CommandOf(typed) << "--output" << file);
    QFETCH(const QByteArray, noNumber);
    const auto told = noNumber.isEmpty() ? message.simplified().toUtf8() : noNumber + " is not a number";
    QCOMPARE(run.Status, noNumber.isEmpty() ? 1 : 2);
    QCOMPARE(run.Output, QByteArray());
    QVERIFY2(run.Messages.endsWith(": " + told + '\n'), run.Messages + " instead of " + told);
    QVERIFY(!QFile::exists(file));
}

QTEST_MAIN(SavedFileTest)
#include "SavedFileTest.moc"
