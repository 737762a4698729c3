/// The settings file: what it holds is text, whatever it looks like, and reads as other programs read it.

#include "frame/SettingsText.h"
#include "frame/LastFolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class SettingsTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void TextsReadBack_data();
    void TextsReadBack();
    void WrittenValuesAreRead_data();
    void WrittenValuesAreRead();
    void AValueOfATypeIsNoFolder_data();
    void AValueOfATypeIsNoFolder();
    void OtherSettingsStay();
    void AFolderIsRememberedOverAnyFile();
    void OnlyTheBeginningOfALargeFileCounts();

private:
    QString File() const { return folder->filePath(QStringLiteral("tavik/tavik.conf")); }
    void Write(const QByteArray& bytes) const;
    QByteArray Contents() const;

    std::unique_ptr<QTemporaryDir> folder;
};

void SettingsTextTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("tavik")));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder->path());
}

void SettingsTextTest::Write(const QByteArray& bytes) const
{
    QFile file(File());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray SettingsTextTest::Contents() const
{
    QFile file(File());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void SettingsTextTest::TextsReadBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("folder") << "/home/user/charts";
    QTest::newRow("blanks at both ends") << " a b ";
    QTest::newRow("comma, semicolon, equals sign") << "a,b;c=d";
    QTest::newRow("quote and backslash") << "a\"b\\c\\x41";
    QTest::newRow("control character before a digit") << QString("a\001") + "b1\x7F" + "f\n0";
    QTest::newRow("type of a value") << "@Variant(x)";
    QTest::newRow("two signs") << "@@x";
    QTest::newRow("letters of all planes") << QString::fromUtf8("\u00E4\u03BC\U0001F600");
    QTest::newRow("half a letter before a digit") << QString(QChar(0xD83D)) + "a";
    QTest::newRow("nothing") << "";
}

void SettingsTextTest::TextsReadBack()
{
    QFETCH(QString, text);
    QCOMPARE(TextOfSetting(WrittenSetting(text)), text);
    QSettings(File(), SettingsText()).setValue("Settings/FilePath", text);
    // The system's own reader agrees.
    QFile::copy(File(), folder->filePath("copy.ini"));
    QCOMPARE(QSettings(folder->filePath("copy.ini"), QSettings::IniFormat).value("Settings/FilePath"), text);
}

void SettingsTextTest::WrittenValuesAreRead_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "/home/user"
                           << "/home/user";
    QTest::newRow("blanks around") << "  /a b \t"
                                   << "/a b";
    QTest::newRow("quoted") << "\" /a \""
                            << " /a ";
    QTest::newRow("hexadecimal escape") << "/\\x41\\xe4" << QString::fromUtf8("/A\u00E4");
    QTest::newRow("octal escape") << "/\\101\\0" << QString("/A") + QChar(0);
    QTest::newRow("letters") << "\\a\\b\\f\\n\\r\\t\\v\\\\\\\""
                             << "\a\b\f\n\r\t\v\\\"";
    QTest::newRow("backslash at the end") << "a\\"
                                          << "a\\";
    QTest::newRow("told text") << "@@Variant"
                               << "@Variant";
}

void SettingsTextTest::WrittenValuesAreRead()
{
    QFETCH(QString, written);
    QFETCH(QString, text);
    QCOMPARE(TextOfSetting(written), text);
}

void SettingsTextTest::AValueOfATypeIsNoFolder_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("list of a billion") << QByteArray(R"(@Variant(\0\0\0\t\x1f\xff\xff\xf0))");
    QTest::newRow("list, its sign escaped") << QByteArray(R"(\x40Variant(\0\0\0\t\x1f\xff\xff\xf0))");
    QTest::newRow("list within a list, and so on")
        << "@Variant(" + QByteArray(R"(\0\0\0\t\0\0\0\1)").repeated(2000) + ")";
    QTest::newRow("bytes") << QByteArray("@ByteArray(/)");
    QTest::newRow("folders in a list") << QByteArray("/, /");
}

void SettingsTextTest::AValueOfATypeIsNoFolder()
{
    QFETCH(QByteArray, value);
    Write("[Settings]\nFilePath=" + value + "\n");
    const QVariant read = QSettings(File(), SettingsText()).value("Settings/FilePath");
    QCOMPARE(read.typeId(), static_cast<int>(QMetaType::QString));
    QCOMPARE(read.toString(), TextOfSetting(QString::fromUtf8(value)));
    QCOMPARE(LastFolder(), QDir::currentPath());
}

void SettingsTextTest::OtherSettingsStay()
{
    Write("; a remark\r\n[A]\r\nx\\y = \"1\"\r\n[Settings]\r\nOther=2\r\nFilePath=/gone\r\n");
    RememberFolder("/a.tvk", "a.tvk");
    QCOMPARE(Contents(), QByteArray("[A]\nx\\y=\"1\"\n[Settings]\nFilePath=\"/\"\nOther=\"2\"\n"));
}

void SettingsTextTest::AFolderIsRememberedOverAnyFile()
{
    Write(QByteArray("\xFF\xFE[[[=\n\0]=\n=x\n[Settings", 23));
    QCOMPARE(LastFolder(), QDir::currentPath());
    RememberFolder(folder->filePath("a.tvk"), "a.tvk");
    QCOMPARE(LastFolder(), folder->path());
}

void SettingsTextTest::OnlyTheBeginningOfALargeFileCounts()
{
    Write(QByteArray(64 * 1024, '\n') + "[Settings]\nFilePath=/\n");
    QCOMPARE(LastFolder(), QDir::currentPath());
}

QTEST_GUILESS_MAIN(SettingsTextTest)
#include "SettingsTextTest.moc"
