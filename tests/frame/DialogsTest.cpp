/// Runs the tests of the dialogs in a system without a printer.

#include "tests/frame/ComdlgFilesTest.h"
#include "tests/frame/ComdlgTest.h"
#include "tests/frame/HelpViewerTest.h"
#include "tests/frame/NoticesTest.h"

#include <QApplication>
#include <QTest>

int main(int argc, char* argv[])
{
    // Nothing listens there, so no printer is found, whatever this system has.
    qputenv("CUPS_SERVER", "localhost:1");
    QApplication application(argc, argv);
    ComdlgTest comdlg;
    ComdlgFilesTest files;
    HelpViewerTest help;
    NoticesTest notices;
    int failures = 0;
    for (QObject* test : {static_cast<QObject*>(&comdlg), static_cast<QObject*>(&files),
                          static_cast<QObject*>(&help), static_cast<QObject*>(&notices)})
    {
        failures += QTest::qExec(test, argc, argv);
    }
    return failures;
}
