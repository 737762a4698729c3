/// A user of the main window who saves to one file without end, one part and another by turns.

#include "tests/frame/Desk.h"

#include <QApplication>
#include <QSettings>

#include <iostream>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, arguments.value(2));
    Desk desk;
    desk.AnswerBy(QMessageBox::Yes);
    desk.ClickChartType(2);
    for (int turn = 0;; ++turn)
    {
        desk.TypePart(turn % 2 == 0 ? "KTU155R71H101KA01" : "KTS31NB51E106MA01");
        desk.Type("txtDCBiasVol", "0");
        desk.SaveAs(arguments.value(1));
        std::cout << "saved" << std::endl;
    }
}
