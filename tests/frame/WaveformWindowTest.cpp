/// The window that makes a sine of a current of any shape, before the search.

#include "frame/WaveformPicture.h"
#include "frame/frmWaveform.h"
#include "tests/frame/FindDesk.h"

#include <QAccessible>
#include <QFile>
#include <QFileDialog>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>

#include <cmath>
#include <functional>
#include <random>

class WaveformWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpensBesideTheCurrent();
    void ConverterIsAnsweredWhileTyping();
    void EntriesOfAConverterAreJudged_data();
    void EntriesOfAConverterAreJudged();
    void TurnsAreAskedOfAFlyback();
    void OkFillsTheSearchAndSaysWhereFrom();
    void BiasOfAConverterFillsAnEmptyBox();
    void CancelChangesNothing();
    void WhatWasTypedStays();
    void FileIsReadAndItsCurrentFound();
    void ColumnIsChosenWhereSeveralMayBeMeant();
    void StretchIsAsked();
    void FaultsStandInTheWindow_data();
    void FaultsStandInTheWindow();
    void TooLargeAFileIsNotRead();
    void LongReadingShowsProgressAndCanBeCancelled();
    void PictureFollowsTheEntries();
    void PictureShowsTheCurrent_data();
    void PictureShowsTheCurrent();
    void PictureFillsItsPlace();
    void WindowFitsASmallScreen();
    void KeysLeadThroughTheWindow();
    void ControlsHaveNames();
};

namespace
{
constexpr double amplitude = 2;
constexpr double hertz = 500e3;

/// A triangle in A, which has amplitude/√3 r.m.s.
double Triangle(double seconds)
{
    const double phase = seconds * hertz - std::floor(seconds * hertz);
    return amplitude * (phase < 0.5 ? 4 * phase - 1 : 3 - 4 * phase);
}

/// A search with the window before it.
struct WaveDesk : FindDesk
{
    WaveDesk()
    {
        QApplication::setActiveWindow(window);
        QTest::mouseClick(FindDesk::Control<QPushButton>("cmdFindWaveform"), Qt::LeftButton);
        wave = window->findChild<frmWaveform*>();
        if (wave != nullptr)
        {
            QApplication::setActiveWindow(wave);
        }
    }

    template <class T> T* Of(const char* name) const { return wave->findChild<T*>(name); }
    QString Told() const { return Of<QLabel>("lblWaveform")->text(); }
    WaveformPicture* Picture() const { return Of<WaveformPicture>("picWaveform"); }
    bool CanTake() const { return Of<QPushButton>("cmdWaveOK")->isEnabled(); }
    void Show(int page) const { Of<QTabWidget>("tabWaveform")->setCurrentIndex(page); }
    void Key(const char* box, const QString& text) const
    {
        auto* const line = Of<QLineEdit>(box);
        line->setFocus();
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
    }
    /// 12 V to 3.3 V, 5 A, 500 kHz, 2.2 µH.
    void KeyBuck() const
    {
        Show(1);
        Key("txtConvVin", "12");
        Key("txtConvVout", "3.3");
        Key("txtConvIout", "5");
        Key("txtConvFrequency", "500");
        Key("txtConvInductance", "2.2");
    }
    /// Writes a file, of a length of its own where one is given, and opens it through the dialog.
    void Open(const QByteArray& text, qint64 length = 0)
    {
        const QString path = folder.filePath("buck.txt");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
        if (length > 0)
        {
            QVERIFY(file.resize(length));
        }
        file.close();
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, &answer,
                         [&]
                         {
                             auto* const dialog =
                                 qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                             if (dialog != nullptr && dialog->isVisible())
                             {
                                 answer.stop();
                                 auto* const name = dialog->findChild<QLineEdit*>("fileNameEdit");
                                 name->setText(path);
                                 QTest::keyClick(name, Qt::Key_Return);
                             }
                         });
        answer.start(5);
        QTest::mouseClick(Of<QPushButton>("cmdWaveOpen"), Qt::LeftButton);
    }
    bool Tells(const QString& text) const
    {
        return QTest::qWaitFor([&] { return Told().contains(text); }, 20000);
    }
    void Grab(const char* name) const
    {
        const QString pictures = qEnvironmentVariable("FIND_PICTURES");
        if (!pictures.isEmpty())
        {
            Settle();
            wave->grab().save(pictures + "/" + name + ".png");
        }
    }

    QTemporaryDir folder;
    frmWaveform* wave = nullptr;
};

/// Rows of a current, a triangle where none is given: it under the first name, half of it under the other
/// one.
QByteArray Rows(const QByteArray& heading, int rows = 20001,
                const std::function<double(double seconds)>& currentAt = Triangle)
{
    QByteArray text = heading + "\n";
    constexpr double step = 20e-9;
    for (int row = 0; row < rows; ++row)
    {
        const double current = currentAt(row * step);
        text += QByteArray::number(row * step, 'g', 12) + ' ' + QByteArray::number(current, 'g', 12) + ' ' +
                QByteArray::number(current / 2, 'g', 12) + '\n';
    }
    return text;
}
} // namespace

// ---- The window ----

void WaveformWindowTest::OpensBesideTheCurrent()
{
    WaveDesk desk;
    QVERIFY(desk.wave != nullptr);
    QVERIFY(desk.wave->isVisible());
    QCOMPARE(desk.wave->windowTitle(), QString("Waveform"));
    QCOMPARE(desk.Told(), QString("Open the text that a simulator or an oscilloscope wrote."));
    QVERIFY(!desk.CanTake());
    QVERIFY(!desk.FindDesk::Control<QLabel>("lblFindOrigin")->isVisible());
    desk.FindDesk::Click("cmdFindWaveform");
    QCOMPARE(desk.window->findChildren<frmWaveform*>().size(), 1);
}

// ---- Converters ----

void WaveformWindowTest::ConverterIsAnsweredWhileTyping()
{
    WaveDesk desk;
    desk.Show(1);
    QCOMPARE(desk.Told(), QString("Enter all data of the converter."));
    desk.KeyBuck();
    desk.Grab("converter");
    // The r.m.s. value of a trapezoid of duty d, mean I and ripple R: √(d(1-d)·I² + d·R²/12).
    const double duty = 3.3 / 12;
    const double ripple = 3.3 * (1 - duty) / (2.2e-6 * hertz);
    const double arms = std::sqrt(duty * (1 - duty) * 25 + duty * ripple * ripple / 12);
    QVERIFY2(desk.Told().contains("\n" + QString::number(arms, 'f', 4) + " Arms, "), qPrintable(desk.Told()));
    QVERIFY(desk.Told().startsWith("buck input: 12 V to 3.3 V, 5 A, 500 kHz, 2.2 µH; continuous, 27.5 % on"));
    QVERIFY(desk.CanTake());
    desk.Of<QComboBox>("cmbConvSide")->setCurrentIndex(1);
    QVERIFY(desk.Told().startsWith("buck output: "));
    QVERIFY(desk.Told().contains("\n" + QString::number(ripple / std::sqrt(12.0), 'f', 4) + " Arms, "));
    desk.Of<QComboBox>("cmbConverter")->setCurrentIndex(0);
    desk.Key("txtConvFrequency", "0.5MHz");
    QVERIFY(desk.Told().contains("500 kHz"));
}

void WaveformWindowTest::EntriesOfAConverterAreJudged_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("isMarked");
    QTest::addColumn<QString>("told");
    QTest::newRow("no number") << "txtConvVin"
                               << "twelve" << true << "\"twelve\" is not a number";
    QTest::newRow("another unit") << "txtConvInductance"
                                  << "2V" << true << "\"V\" is not";
    QTest::newRow("left out") << "txtConvIout"
                              << " " << false << "Enter all data of the converter.";
    QTest::newRow("impossible") << "txtConvVout"
                                << "13" << false << "A buck converter's vout is below its vin";
    QTest::newRow("below 0") << "txtConvIout"
                             << "-1" << false << "All values of a converter are above 0";
}

void WaveformWindowTest::EntriesOfAConverterAreJudged()
{
    QFETCH(QString, box);
    QFETCH(QString, typed);
    QFETCH(bool, isMarked);
    QFETCH(QString, told);
    WaveDesk desk;
    desk.KeyBuck();
    QVERIFY(desk.CanTake());
    auto* const line = desk.Of<QLineEdit>(qPrintable(box));
    const QString before = line->text();
    desk.Key(qPrintable(box), typed);
    QVERIFY2(desk.Told().contains(told), qPrintable(desk.Told()));
    QVERIFY(!desk.CanTake());
    QCOMPARE(!line->styleSheet().isEmpty(), isMarked);
    QCOMPARE(line->accessibleDescription(), isMarked ? desk.Told() : QString());
    desk.Key(qPrintable(box), before);
    QVERIFY(desk.CanTake());
    QVERIFY(line->styleSheet().isEmpty());
}

void WaveformWindowTest::TurnsAreAskedOfAFlyback()
{
    WaveDesk desk;
    desk.KeyBuck();
    QVERIFY(!desk.Of<QLineEdit>("txtConvTurns")->isVisible());
    desk.Of<QComboBox>("cmbConverter")->setCurrentIndex(2);
    QVERIFY(desk.Of<QLineEdit>("txtConvTurns")->isVisible());
    QCOMPARE(desk.Of<QComboBox>("cmbConvSide")->currentText(), QString("Output"));
    QVERIFY(desk.Told().startsWith("flyback output: "));
    const QString even = desk.Told();
    desk.Key("txtConvTurns", "4");
    QVERIFY(desk.CanTake());
    QVERIFY(desk.Told() != even);
    desk.Key("txtConvTurns", "four");
    QCOMPARE(desk.Told(), QString("\"four\" is not a number"));
}

// ---- What the search takes ----

void WaveformWindowTest::OkFillsTheSearchAndSaysWhereFrom()
{
    WaveDesk desk;
    desk.KeyBuck();
    QTest::keyClick(desk.Of<QLineEdit>("txtConvVin"), Qt::Key_Return);
    QVERIFY(!desk.wave->isVisible());
    const auto* current = desk.FindDesk::Control<QLineEdit>("txtFindCurrent");
    const auto* frequency = desk.FindDesk::Control<QLineEdit>("txtFindFrequency");
    QVERIFY(desk.Told().contains("Heats like a sine of 2.2567 Arms at 633.8 kHz"));
    QCOMPARE(current->text(), QString("2.257"));
    QCOMPARE(frequency->text(), QString("633.8"));
    // The bias that stands there stays.
    QCOMPARE(desk.FindDesk::Control<QLineEdit>("txtFindDCBiasVol")->text(), QString("0"));
    const auto* origin = desk.FindDesk::Control<QLabel>("lblFindOrigin");
    QVERIFY(origin->isVisible());
    QCOMPARE(origin->text(), QString("From buck input"));
    QVERIFY(!desk.Table()->isColumnHidden(desk.Column("Rise [°C]")));
    ::Grab(desk, "origin");
    desk.Enter("txtFindDCBiasVol", "12");
    QVERIFY(origin->isVisible());
    desk.Enter("txtFindFrequency", "500");
    QVERIFY(!origin->isVisible());
    QVERIFY(origin->text().isEmpty());
}

void WaveformWindowTest::BiasOfAConverterFillsAnEmptyBox()
{
    WaveDesk desk;
    desk.Enter("txtFindDCBiasVol", "");
    desk.KeyBuck();
    QTest::mouseClick(desk.Of<QPushButton>("cmdWaveOK"), Qt::LeftButton);
    QCOMPARE(desk.FindDesk::Control<QLineEdit>("txtFindDCBiasVol")->text(), QString("12"));
}

void WaveformWindowTest::CancelChangesNothing()
{
    WaveDesk desk;
    desk.Enter("txtFindCurrent", "1");
    desk.KeyBuck();
    QTest::mouseClick(desk.Of<QPushButton>("cmdWaveCancel"), Qt::LeftButton);
    QVERIFY(!desk.wave->isVisible());
    QVERIFY(desk.window->isVisible());
    QCOMPARE(desk.FindDesk::Control<QLineEdit>("txtFindCurrent")->text(), QString("1"));
    QCOMPARE(desk.FindDesk::Control<QLineEdit>("txtFindFrequency")->text(), QString());
    QVERIFY(!desk.FindDesk::Control<QLabel>("lblFindOrigin")->isVisible());
}

void WaveformWindowTest::WhatWasTypedStays()
{
    WaveDesk desk;
    desk.KeyBuck();
    const QString told = desk.Told();
    QTest::keyClick(desk.wave, Qt::Key_Escape);
    QVERIFY(!desk.wave->isVisible());
    desk.window->close();
    desk.Find<QToolButton>("cmdFind")->click();
    desk.FindDesk::Click("cmdFindWaveform");
    QVERIFY(desk.wave->isVisible());
    QCOMPARE(desk.Of<QLineEdit>("txtConvVout")->text(), QString("3.3"));
    QCOMPARE(desk.Told(), told);
    QVERIFY(desk.CanTake());
}

// ---- Files ----

void WaveformWindowTest::FileIsReadAndItsCurrentFound()
{
    WaveDesk desk;
    desk.Open(Rows("time i(c1) v(out)"));
    QVERIFY2(desk.Tells("Heats like"), qPrintable(desk.Told()));
    desk.Grab("file");
    QCOMPARE(desk.Of<QLabel>("lblWaveFile")->text(), QString("buck.txt"));
    QCOMPARE(desk.Of<QComboBox>("cmbWaveColumn")->currentText(), QString("i(c1)"));
    QVERIFY(desk.Told().startsWith("i(c1): 200 periods of 2.0000 µs (500.00 kHz) from "));
    QVERIFY(desk.Told().contains("\n1.1547 Arms, 4.000 A peak to peak, mean "));
    QTest::mouseClick(desk.Of<QPushButton>("cmdWaveOK"), Qt::LeftButton);
    QCOMPARE(desk.FindDesk::Control<QLineEdit>("txtFindCurrent")->text(), QString("1.155"));
    QCOMPARE(desk.FindDesk::Control<QLabel>("lblFindOrigin")->text(), QString("From i(c1) of buck.txt"));
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
}

void WaveformWindowTest::ColumnIsChosenWhereSeveralMayBeMeant()
{
    WaveDesk desk;
    desk.Open(Rows("time i(c1) i(c2)"));
    QVERIFY(desk.Tells("Choose the column of the current."));
    QCOMPARE(desk.Of<QComboBox>("cmbWaveColumn")->currentIndex(), -1);
    desk.Of<QComboBox>("cmbWaveColumn")->setCurrentIndex(1);
    QVERIFY(desk.Tells("i(c2): "));
    QVERIFY(desk.Told().contains("0.5774 Arms"));
    // The same name stays chosen in the next file.
    desk.Open(Rows("time i(c2) i(c1)"));
    QVERIFY(desk.Tells("1.1547 Arms"));
    QCOMPARE(desk.Of<QComboBox>("cmbWaveColumn")->currentText(), QString("i(c2)"));
}

void WaveformWindowTest::StretchIsAsked()
{
    WaveDesk desk;
    desk.Open(Rows("time i(c1) v(out)"));
    QVERIFY(desk.Tells("200 periods of 2.0000 µs"));
    desk.Key("txtWaveFrom", "100us");
    QVERIFY(desk.Tells("150 periods of 2.0000 µs"));
    desk.Key("txtWaveTo", "200E-6");
    QVERIFY(desk.Tells("50 periods of 2.0000 µs"));
    desk.Key("txtWavePeriod", "250kHz");
    QVERIFY2(desk.Tells("25 periods of 4.0000 µs"), qPrintable(desk.Told()));
    desk.Key("txtWavePeriod", "1s");
    QVERIFY(QTest::qWaitFor([&] { return !desk.Told().contains("Heats like"); }, 20000));
    QVERIFY(!desk.CanTake());
    desk.Key("txtWavePeriod", "0");
    QVERIFY(desk.Tells("Please enter a Number above 0"));
    QVERIFY(!desk.Of<QLineEdit>("txtWavePeriod")->styleSheet().isEmpty());
    desk.Key("txtWavePeriod", "");
    QVERIFY(desk.Tells("50 periods of 2.0000 µs"));
    QVERIFY(desk.CanTake());
}

void WaveformWindowTest::FaultsStandInTheWindow_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("told");
    QTest::newRow("too few rows") << Rows("time i v", 5) << "buck.txt: there are only 5 rows";
    QTest::newRow("no rows") << QByteArray("nothing\n") << "buck.txt: there are no rows of numbers";
    QTest::newRow("raw") << QByteArray("Title: *\n")
                         << "buck.txt: is a raw file: export the waveform as text";
    QTest::newRow("two runs") << Rows("time i v", 20) + "0 1 1\n"
                              << "line 22";
    QTest::newRow("no current") << []
    {
        QByteArray text("time i(c1)\n");
        for (int row = 0; row < 100; ++row)
        {
            text += QByteArray::number(row) + " 1\n";
        }
        return text;
    }() << "current";
}

void WaveformWindowTest::FaultsStandInTheWindow()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, told);
    WaveDesk desk;
    desk.Open(text);
    QVERIFY2(desk.Tells(told), qPrintable(desk.Told()));
    QVERIFY(!desk.CanTake());
    QCOMPARE(desk.TakeBoxes().size(), std::size_t{0});
    desk.Open(Rows("time i(c1) v(out)"));
    QVERIFY(desk.Tells("Heats like"));
    QVERIFY(desk.CanTake());
}

void WaveformWindowTest::TooLargeAFileIsNotRead()
{
    WaveDesk desk;
    // Only its length is there.
    desk.Open("time i(c1)\n", (qint64{1} << 30) + 1);
    QVERIFY2(desk.Tells("buck.txt: is larger than 1 GiB: export fewer columns"), qPrintable(desk.Told()));
    QVERIFY(!desk.CanTake());
}

void WaveformWindowTest::LongReadingShowsProgressAndCanBeCancelled()
{
    WaveDesk desk;
    const auto* progress = desk.Of<QProgressBar>("prgWaveform");
    // Long enough to be read for more than a second.
    const QByteArray row = QByteArray(60, '0') + "1 " + QByteArray(60, '0') + "1\n";
    desk.Open("time i(c1)\n" + row.repeated(1'500'000));
    QVERIFY(!progress->isVisible());
    QVERIFY(QTest::qWaitFor([&] { return progress->isVisible(); }, 5000));
    QVERIFY(desk.Told().isEmpty());
    desk.Grab("reading");
    QTest::keyClick(desk.wave, Qt::Key_Escape);
    QVERIFY(desk.wave->isVisible());
    QVERIFY(!progress->isVisible());
    QCOMPARE(desk.Told(), QString("Cancelled. Open a file, or change an entry."));
    desk.Open(Rows("time i(c1) v(out)"));
    QVERIFY(desk.Tells("Heats like"));
}

// ---- The picture ----

/// How many pixels of what the picture shows are strongly blue: the curves and the bars.
static int BluePixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
    {
        for (int x = 0; x < image.width(); ++x)
        {
            const QColor color = image.pixelColor(x, y);
            count += color.blue() > 120 && color.red() < 60 && color.green() < 110 ? 1 : 0;
        }
    }
    return count;
}

static QImage Shown(const WaveDesk& desk)
{
    return desk.Picture()->grab().toImage();
}

void WaveformWindowTest::PictureFollowsTheEntries()
{
    WaveDesk desk;
    QVERIFY(desk.Picture()->isVisible());
    QVERIFY(desk.Picture()->IsEmpty());
    QCOMPARE(BluePixels(Shown(desk)), 0);
    desk.KeyBuck();
    QVERIFY(!desk.Picture()->IsEmpty() && !desk.Picture()->IsFaded());
    QCOMPARE(desk.Picture()->accessibleDescription(),
             QString("buck input: 2.257 Arms, heats like a sine of 2.257 Arms at 633.8 kHz"));
    const QImage input = Shown(desk);
    QVERIFY(BluePixels(input) > 500);
    desk.Of<QComboBox>("cmbConvSide")->setCurrentIndex(1);
    QVERIFY(desk.Picture()->accessibleDescription().startsWith("buck output: 627.9 mArms"));
    QVERIFY(Shown(desk) != input);
    // What no longer holds fades where it stands, and comes back with the entry.
    desk.Of<QComboBox>("cmbConvSide")->setCurrentIndex(0);
    desk.Key("txtConvVout", "");
    QVERIFY(!desk.Picture()->IsEmpty() && desk.Picture()->IsFaded());
    desk.Grab("faded");
    QCOMPARE(BluePixels(Shown(desk)), 0);
    QCOMPARE(desk.Picture()->accessibleDescription(), QString());
    desk.Key("txtConvVout", "3.3");
    QVERIFY(!desk.Picture()->IsFaded());
    QCOMPARE(Shown(desk), input);
    desk.Show(0);
    QVERIFY(desk.Picture()->IsEmpty());
    QCOMPARE(BluePixels(Shown(desk)), 0);
}

void WaveformWindowTest::PictureShowsTheCurrent_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("told");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("clean") << Rows("time i(c1) v") << "200 periods of 2.0000 µs" << true;
    const auto bursts = [](double seconds)
    { return std::fmod(seconds, 200e-6) < 80e-6 ? Triangle(seconds) : 0; };
    QTest::newRow("bursts") << Rows("time i(c1) v", 100001, bursts) << "10 periods of 200.00 µs" << true;
    std::mt19937 random(3);
    std::normal_distribution<double> noise(0, 0.4);
    const auto noisy = [&](double seconds) { return Triangle(seconds) + noise(random); };
    QTest::newRow("noisy") << Rows("time i(c1) v", 20001, noisy) << "Warning: the periods are not alike"
                           << true;
    const auto starting = [](double seconds) { return Triangle(seconds) + 20 * std::exp(-seconds / 100e-6); };
    QTest::newRow("not settled") << Rows("time i(c1) v", 20001, starting) << "The current is not settled"
                                 << false;
}

void WaveformWindowTest::PictureShowsTheCurrent()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, told);
    QFETCH(bool, isShown);
    WaveDesk desk;
    desk.Open(text);
    QVERIFY2(desk.Tells(told), qPrintable(desk.Told()));
    desk.Grab(QTest::currentDataTag());
    QCOMPARE(desk.Picture()->IsEmpty(), !isShown);
    QCOMPARE(BluePixels(Shown(desk)) > 500, isShown);
    QCOMPARE(desk.Picture()->accessibleDescription().startsWith("i(c1): "), isShown);
}

/// Pixels between the right side of the upper plot's frame and the right edge.
static int RightMargin(const QImage& image)
{
    int x = image.width() - 1;
    while (x > 0 && image.pixelColor(x, image.height() / 4).lightness() > 80)
    {
        --x;
    }
    return image.width() - x;
}

void WaveformWindowTest::PictureFillsItsPlace()
{
    WaveDesk desk;
    desk.KeyBuck();
    Settle();
    const QSize usual = desk.wave->size();
    const QImage before = Shown(desk);
    QVERIFY(RightMargin(before) < before.width() / 10);
    desk.wave->resize(usual + QSize(200, 150));
    Settle();
    const QImage larger = Shown(desk);
    QCOMPARE(larger.deviceIndependentSize().toSize(), desk.Picture()->size());
    QVERIFY(larger.width() > before.width() && larger.height() > before.height());
    // Drawn anew, not stretched: the frame of the plot ends as far from the right edge.
    QVERIFY(qAbs(RightMargin(larger) - RightMargin(before)) <= 1);
    desk.wave->resize(usual);
    Settle();
    QCOMPARE(Shown(desk), before);
}

void WaveformWindowTest::WindowFitsASmallScreen()
{
    // Of 960 by 540, of which a usual frame leaves this.
    const QSize free(944, 492);
    WaveDesk desk;
    for (int page = 0; page < 2; ++page)
    {
        desk.Show(page);
        QVERIFY2(desk.wave->minimumSizeHint().boundedTo(free) == desk.wave->minimumSizeHint(),
                 qPrintable(QString::number(desk.wave->minimumSizeHint().height())));
    }
    desk.KeyBuck();
    desk.wave->resize(desk.wave->minimumSizeHint());
    Settle();
    desk.Grab("least");
    QVERIFY(desk.Picture()->height() >= 200);
    const auto* text = desk.Of<QScrollArea>("scrWaveform");
    QVERIFY(desk.Picture()->geometry().bottom() < text->geometry().top());
    QVERIFY(text->verticalScrollBar()->maximum() > 0);
    QVERIFY(desk.wave->rect().contains(desk.Of<QPushButton>("cmdWaveOK")->geometry()));
    QVERIFY(BluePixels(Shown(desk)) > 300);
}

// ---- Keys and names ----

void WaveformWindowTest::KeysLeadThroughTheWindow()
{
    WaveDesk desk;
    desk.Show(1);
    desk.Of<QComboBox>("cmbConverter")->setCurrentIndex(2);
    desk.Of<QComboBox>("cmbConverter")->setFocus();
    QStringList order;
    for (int i = 0; i < 8; ++i)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        order << QApplication::focusWidget()->objectName();
    }
    QCOMPARE(order, QStringList({"txtConvVin", "txtConvVout", "txtConvIout", "txtConvFrequency",
                                 "txtConvInductance", "txtConvTurns", "cmbConvSide", "scrWaveform"}));
    QTest::keyClick(desk.wave, Qt::Key_U, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("txtConvIout"));
}

void WaveformWindowTest::ControlsHaveNames()
{
    WaveDesk desk;
    desk.Of<QComboBox>("cmbConverter")->setCurrentIndex(2);
    for (int page = 0; page < 2; ++page)
    {
        desk.Show(page);
        for (QWidget* control : desk.wave->findChildren<QWidget*>())
        {
            if (control->isVisible() && control->focusPolicy() != Qt::NoFocus &&
                !control->objectName().startsWith("qt_"))
            {
                const auto* told = QAccessible::queryAccessibleInterface(control);
                QVERIFY2(told != nullptr && !told->text(QAccessible::Name).isEmpty(),
                         qPrintable(control->objectName()));
            }
        }
    }
}

QTEST_MAIN(WaveformWindowTest)
#include "WaveformWindowTest.moc"
