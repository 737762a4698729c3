#include "frame/frmMain.h"

#include "app/mdlPublic.h"
#include "calc/ChartNames.h"
#include "calc/DataFile.h"
#include "files/WholeFile.h"
#include "formkit/HourglassScope.h"
#include "formkit/Messages.h"
#include "formkit/RunCommand.h"
#include "formkit/Texts.h"
#include "frame/DataPage.h"
#include "frame/FileNames.h"
#include "frame/LastFolder.h"
#include "frame/PrintJob.h"
#include "frame/clsComdlg.h"
#include "frame/frmPrinting.h"
#include "partdata/Windows1252.h"

#include <QFileInfo>
#include <QPrinter>

static const PartRecord& PartOf(const ChartRecord& line)
{
    return mdlPublic.Parts.PartData[static_cast<std::size_t>(line.PartDataIndex)];
}

/// Runs a command that plots no line.
template <class Steps> static void RunOutput(QWidget* window, const Steps& steps)
{
    RunCommand(window,
               [&]
               {
                   mdlPublic.Charts.ClearWorkingRecord();
                   steps();
               });
}

/// The curve of the current selection, beside the store of plotted lines; nothing when its parameter is
/// refused, which the user is then told.
std::optional<ChartRecord> frmMain::CurrentCurve()
{
    ChartRecord line = library->WriteChartData(library->GetSelectedPart(), library->GetChartType());
    if (const auto refusal = Calculate(PartOf(line), line, GetCodeView()))
    {
        library->ReportParameter(*refusal);
        return std::nullopt;
    }
    return line;
}

// ---- Saving data ----

void frmMain::mnuSaveDataToFile_Click()
{
    if (!library->CheckChartConditions())
    {
        return;
    }
    RunOutput(this,
              [this]
              {
                  if (const auto line = CurrentCurve())
                  {
                      SaveData(*line);
                  }
              });
}

/// Asks for a file and writes a curve to it.
void frmMain::SaveData(const ChartRecord& line)
{
    clsComdlg dialog;
    dialog.hWndOwner = this;
    dialog.Flags = 6;
    dialog.InitDir = LastFolder();
    dialog.Filter(QStringLiteral("tavik Data Files (*.tvk)|*.tvk|All Files (*.*)|*.*|"));
    dialog.FilterIndex = 1;
    dialog.FileName = FileNameOf(library->ShownPartNum()) + QStringLiteral(".tvk");
    dialog.ShowSave();
    RememberFolder(dialog.FileName, dialog.FileTitle);
    NoteFolder({}, dialog.FileName);
    {
        const HourglassScope hourglass;
        const auto text = DataFileText(line, PartOf(line), GetCodeView(), TodayInFile());
        WriteWholeFile(dialog.FileName.toStdString(), text);
    }
    ShowInformation(this, QStringLiteral("tavik Data saved to ") + dialog.FileName);
}

// ---- Printing ----

/// The printer of the running program: what is set up once holds until the program ends.
QPrinter& frmMain::Printer()
{
    if (!printer)
    {
        printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    }
    return *printer;
}

void frmMain::mnuFilePageSetup_Click()
{
    RunOutput(this,
              [this]
              {
                  clsComdlg dialog(&Printer());
                  dialog.hWndOwner = this;
                  dialog.Flags = 64;
                  dialog.ShowPrinter();
              });
}

void frmMain::PrintChart(const ChartPage& page)
{
    RunOutput(this,
              [&]
              {
                  clsComdlg dialog(&Printer());
                  dialog.hWndOwner = this;
                  dialog.ShowPrinter();
                  const SurfaceKind kind = KindOf(Printer());
                  PrintWithNotice([&](QPainter& painter, const PageArea& area)
                                  { DrawChartPage(page, area, kind, painter); },
                                  FromAnsi(ChartCaption(page.View.Chart)));
              });
}

void frmMain::mnuPrintData_Click()
{
    if (!library->CheckChartConditions())
    {
        return;
    }
    RunOutput(this,
              [this]
              {
                  const auto line = CurrentCurve();
                  const auto question = QStringLiteral("Would you print %1 Data ?");
                  if (line && AskOkCancel(this, question.arg(library->ShownPartNum())) && MayReplaceFile())
                  {
                      PrintData(*line);
                  }
              });
}

void frmMain::PrintData(const ChartRecord& line)
{
    const DataPage page{.Line = line,
                        .Part = PartOf(line),
                        .View = GetCodeView(),
                        .Date = Today(),
                        .DegreeSign = Utf8FromWindows1252(mdlPublic.DegreeSign)};
    PrintWithNotice([&](QPainter& painter, const PageArea& area) { DrawDataPage(page, area, painter); },
                    library->ShownPartNum() + u' ' + FromAnsi(ChartCaption(KeyOf(line))));
}

/// Asks before a print into a file replaces it, where no printer dialog has asked.
bool frmMain::MayReplaceFile()
{
    const QString file = Printer().outputFileName();
    return file.isEmpty() || !QFileInfo::exists(file) ||
           AskOkCancel(this, file + QStringLiteral(" already exists.\r\nDo you want to replace it?"));
}

/// Prints one page with the notice on the screen.
void frmMain::PrintWithNotice(const DrawPage& drawPage, const QString& title, PageTurn turn)
{
    const HourglassScope hourglass;
    const frmPrinting notice(this);
    PrintPage(Printer(), drawPage, title, turn);
}
