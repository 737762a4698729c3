#include "formkit/Messages.h"

#include "calc/ProgramTitle.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMessageBox>

QString ProgramTitle()
{
    return QString::fromLatin1(ProgramTitleText.data(), static_cast<qsizetype>(ProgramTitleText.size()));
}

namespace
{
/// Shows the normal pointer while a box waits for the user, even if a long command is under way.
class PointerPause
{
public:
    PointerPause() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~PointerPause() { QGuiApplication::restoreOverrideCursor(); }
    PointerPause(const PointerPause&) = delete;
    PointerPause& operator=(const PointerPause&) = delete;
};
} // namespace

static int Show(QWidget* parent, QMessageBox::Icon icon, QString text,
                QMessageBox::StandardButtons buttons = QMessageBox::Ok)
{
    // The boxes draw a carriage return as a character of its own.
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QMessageBox box(icon, ProgramTitle(), text, buttons, parent);
    box.setTextFormat(Qt::PlainText);
    const PointerPause pause;
    return box.exec();
}

void ShowExclamation(QWidget* parent, const QString& text)
{
    Show(parent, QMessageBox::Warning, text);
}

void ShowInformation(QWidget* parent, const QString& text)
{
    Show(parent, QMessageBox::Information, text);
}

void ShowPlain(QWidget* parent, const QString& text)
{
    Show(parent, QMessageBox::NoIcon, text);
}

void ShowCritical(QWidget* parent, const QString& text)
{
    Show(parent, QMessageBox::Critical, text);
}

void ShowUnexpectedError(QWidget* parent, const RunTimeError& error)
{
    ShowCritical(parent, QStringLiteral("Unexpected Error %1\r\n%2")
                             .arg(error.Number())
                             .arg(QString::fromStdString(error.Description())));
}

bool AskOkCancel(QWidget* parent, const QString& question)
{
    return Show(parent, QMessageBox::Question, question, QMessageBox::Ok | QMessageBox::Cancel) ==
           QMessageBox::Ok;
}
