#include "frame/ProgramIcon.h"

static void LoadIconResource()
{
    // The picture lies in a static library, from where nothing else would pull it in.
    Q_INIT_RESOURCE(tavik);
}

QIcon ProgramIcon()
{
    LoadIconResource();
    return QIcon(QStringLiteral(":/tavik.svg"));
}
