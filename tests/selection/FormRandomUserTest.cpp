/// A user who does anything in any order, beside the plain telling of the cascade.

#include "app/mdlPublic.h"
#include "calc/NumberText.h"
#include "formkit/Texts.h"
#include "tests/Seed.h"
#include "tests/selection/PlainSelection.h"
#include "tests/selection/Ranges.h"
#include "tests/selection/SelectionDesk.h"

#include <QTest>

#include <algorithm>
#include <functional>
#include <random>

/// What the form is to show, told from the rules.
struct PlainForm
{
    PlainSelection Selection{mdlPublic.Parts};
    std::string PartText;
    QString XAxis = "Current";
    bool CanPlot = false;
    bool ParameterEnabled = false;

    void ChooseChartType(int type)
    {
        const auto remembered = PartText;
        Selection.ChooseChartType(type);
        static const std::array<const char*, 4> FirstX = {"Current", "Frequency", "Temperature",
                                                          "DC Bias Voltage"};
        XAxis = FirstX[static_cast<std::size_t>(type)];
        PartText = "";
        Complete(false);
        if (Selection.InList(remembered))
        {
            TypePart(remembered);
        }
    }

    void PickXAxis(const QString& entry)
    {
        XAxis = entry;
        if (Selection.ChartType == 0)
        {
            ParameterEnabled = entry == "Frequency";
        }
    }

    void PickLevel(void (PlainSelection::*pick)(const std::string&), const std::string& entry)
    {
        (Selection.*pick)(entry);
        PartText = Selection.Chosen ? Selection.NumberOf(*Selection.Chosen) : "";
        Complete(Selection.Chosen.has_value());
    }

    void TypePart(const std::string& text)
    {
        PartText = text;
        Complete(false);
        if (const auto part = Selection.InList(text))
        {
            Selection.PickPart(*part);
            Complete(true);
        }
    }

    void PickPart(std::size_t part)
    {
        Selection.PickPart(part);
        PartText = Selection.NumberOf(part);
        Complete(true);
    }

    /// The shown number follows its part; a text that is no part number is lost.
    void Rename(const std::function<void()>& change)
    {
        std::optional<std::size_t> shown;
        for (std::size_t part = 0; part < mdlPublic.Parts.PartData.size(); ++part)
        {
            if (FromAnsi(Selection.NumberOf(part)).compare(FromAnsi(PartText), Qt::CaseInsensitive) == 0)
            {
                shown = part;
            }
        }
        change();
        PartText = shown ? Selection.NumberOf(*shown) : "";
    }

    QStringList EnabledBoxes() const
    {
        QStringList boxes;
        const int type = Selection.ChartType;
        if (CanPlot && type != 3)
        {
            boxes << "txtDCBiasVol";
        }
        if (CanPlot && type == 0 && XAxis != "Frequency")
        {
            boxes << "txtFrequency";
        }
        if (CanPlot && type <= 1)
        {
            boxes << "txtHeatResistance";
        }
        if (CanPlot && type != 2)
        {
            boxes << "txtAmbientTemp";
        }
        if (ParameterEnabled)
        {
            boxes << "txtParameter";
        }
        return boxes;
    }

private:
    void Complete(bool complete)
    {
        // An incomplete part disables the parameter, a complete one enables it for a chart over frequency.
        if (complete)
        {
            ParameterEnabled = ParameterEnabled || (Selection.ChartType == 0 && XAxis == "Frequency");
        }
        else
        {
            ParameterEnabled = false;
        }
        CanPlot = complete;
    }
};

class FormRandomUserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SeesWhatTheRulesTell_data()
    {
        QTest::addColumn<int>("range");
        QTest::addColumn<int>("actions");
        QTest::newRow("crossed range") << 0 << 4000;
        QTest::newRow("range of the curve vectors") << 1 << 1500;
        QTest::newRow("sample range") << 2 << 1000;
    }
    void SeesWhatTheRulesTell()
    {
        QFETCH(int, range);
        QFETCH(int, actions);
        desk = std::make_unique<SelectionDesk>(range == 0   ? CrossedRange()
                                               : range == 1 ? VectorRange()
                                                            : SampleRange());
        plain = std::make_unique<PlainForm>();
        plain->ChooseChartType(0);
        random.seed(TestSeed(static_cast<unsigned>(range) + 7));
        for (int i = 0; i < actions && !QTest::currentTestFailed(); ++i)
        {
            const QString action = Act();
            Compare();
            if (QTest::currentTestFailed())
            {
                qWarning("after action %d: %s", i, qPrintable(action));
            }
        }
        QCOMPARE(desk->messages.Taken(), QStringList());
        desk.reset();
    }

private:
    int Number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random); }

    QString Act()
    {
        switch (Number(12))
        {
        case 0:
            return ChooseChartType(Number(4));
        case 1:
            return SwitchCode(Number(2));
        case 2:
            return SwitchNumbering(Number(2));
        case 3:
            return PickXAxis();
        case 4:
            return TypePart();
        case 5:
        case 6:
            return PickPart();
        case 7:
            return PickLevel("cmbSizeCode", &PlainSelection::PickSize);
        case 8:
            return PickLevel("cmbTcc", &PlainSelection::PickTcc);
        case 9:
            return PickLevel("cmbCap", &PlainSelection::PickCap);
        default:
            return PickLevel("cmbRatedVol", &PlainSelection::PickVolt);
        }
    }

    QString ChooseChartType(int type)
    {
        desk->ChooseChartType(type);
        plain->ChooseChartType(type);
        return QString("chart type %1").arg(type);
    }

    QString SwitchCode(int code)
    {
        if (code == desk->code)
        {
            return "the code on display";
        }
        desk->SwitchCodeView(code);
        plain->Rename([&] { plain->Selection.SwitchCode(static_cast<std::size_t>(code)); });
        return QString("code %1").arg(code);
    }

    QString SwitchNumbering(int generation)
    {
        if (generation == desk->numbering)
        {
            return "the numbering on display";
        }
        desk->SwitchNumbering(generation);
        plain->Rename([&] { plain->Selection.Numbering = 2 * static_cast<std::size_t>(generation); });
        return QString("numbering %1").arg(generation);
    }

    /// Picks a random entry, sometimes with the mouse, sometimes with keys; an empty text when there is none.
    QString PickAny(const char* list)
    {
        const int count = desk->List(list)->count();
        if (count == 0)
        {
            return {};
        }
        const QString entry = desk->List(list)->itemText(Number(count));
        Number(2) == 0 ? desk->Pick(list, entry) : desk->PickByKeys(list, entry);
        return entry;
    }

    QString PickXAxis()
    {
        const QString entry = PickAny("cmbXaxis");
        plain->PickXAxis(entry);
        return "X axis " + entry;
    }

    QString PickLevel(const char* list, void (PlainSelection::*pick)(const std::string&))
    {
        const QString entry = PickAny(list);
        if (!entry.isEmpty())
        {
            plain->PickLevel(pick, ToAnsi(entry));
        }
        return QString(list) + " " + entry;
    }

    QString PickPart()
    {
        const QString number = PickAny("cmbPartNum");
        if (const auto part = plain->Selection.InList(ToAnsi(number)))
        {
            plain->PickPart(*part);
        }
        return "part " + number;
    }

    /// A part of the table, offered or not, as it is called, in small letters, or not to its end.
    QString TypePart()
    {
        const auto part = static_cast<std::size_t>(Number(static_cast<int>(mdlPublic.Parts.PartData.size())));
        QString number = FromAnsi(plain->Selection.NumberOf(part));
        switch (Number(4))
        {
        case 0:
            number = number.toLower();
            break;
        case 1:
            number.chop(1);
            break;
        default:
            break;
        }
        desk->TypePart(number);
        // The text grows letter by letter, and each text on the way counts.
        for (int length = 0; length <= number.size(); ++length)
        {
            plain->TypePart(ToAnsi(number.left(length)));
        }
        return "type " + number;
    }

    static QStringList Listed(const Texts& texts)
    {
        QStringList list;
        for (const auto& text : texts)
        {
            list << FromAnsi(text);
        }
        return list;
    }

    static QString ShownOf(const std::string& choice, const Texts& list)
    {
        return std::count(list.begin(), list.end(), choice) > 0 ? FromAnsi(choice) : QString();
    }

    void Compare() const
    {
        const auto& selection = plain->Selection;
        CompareList("cmbSizeCode", selection.Sizes(), selection.Size);
        CompareList("cmbTcc", selection.Tccs(), selection.Tcc);
        CompareList("cmbCap", selection.Caps(), selection.Cap);
        CompareList("cmbRatedVol", selection.Volts(), selection.Volt);
        QCOMPARE(desk->Entries("cmbPartNum"), Listed(selection.PartNumbers()));
        QCOMPARE(desk->Text("cmbPartNum"), FromAnsi(plain->PartText));
        QCOMPARE(desk->Enabled("cmdPlot"), plain->CanPlot);
        QCOMPARE(desk->form->CanPlot(), plain->CanPlot);
        CompareBoxes();
    }

    void CompareList(const char* list, const Texts& entries, const std::string& choice) const
    {
        QCOMPARE(desk->Entries(list), Listed(entries));
        QCOMPARE(desk->Text(list), ShownOf(choice, entries));
    }

    void CompareBoxes() const
    {
        QStringList enabled;
        for (const char* box :
             {"txtDCBiasVol", "txtFrequency", "txtHeatResistance", "txtAmbientTemp", "txtParameter"})
        {
            if (desk->Enabled(box))
            {
                enabled << box;
            }
        }
        QCOMPARE(enabled, plain->EnabledBoxes());
        QCOMPARE(desk->Text("txtAmbientTemp"), plain->Selection.Code == 0 ? "25" : "20");
        const bool heat = enabled.contains("txtHeatResistance");
        const auto part = desk->form->GetSelectedPart();
        QCOMPARE(
            desk->Text("txtHeatResistance"),
            heat ? QString::fromStdString(NumberText(
                       mdlPublic.Parts.PartData[static_cast<std::size_t>(part)].Data[Value::HeatResistance]))
                 : "");
    }

    std::unique_ptr<SelectionDesk> desk;
    std::unique_ptr<PlainForm> plain;
    std::mt19937 random;
};

QTEST_MAIN(FormRandomUserTest)
#include "FormRandomUserTest.moc"
