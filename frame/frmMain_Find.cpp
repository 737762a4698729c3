#include "chart/frmGraph.h"
#include "frame/frmBom.h"
#include "frame/frmFind.h"
#include "frame/frmMain.h"
#include "ui_frmMain.h"

#include <QMenu>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>

/// The corner of the menu bar stays when a chart's menus take the place of the main window's. A menu bar
/// outside the window would hide it.
void frmMain::AddFindButton()
{
    auto* const cmdFind = new QToolButton(ui->mnuBar);
    cmdFind->setObjectName(QStringLiteral("cmdFind"));
    cmdFind->setText(QStringLiteral("Find Parts..."));
    cmdFind->setToolTip(QStringLiteral("Parts that do what a circuit needs (Ctrl+F)"));
    cmdFind->setAutoRaise(true);
    // Tab goes through the forms as it always does.
    cmdFind->setFocusPolicy(Qt::NoFocus);
    ui->mnuBar->setNativeMenuBar(false);
    ui->mnuBar->setCornerWidget(cmdFind);
    auto* const menu = new QMenu(cmdFind);
    menu->setObjectName(QStringLiteral("mnuPopupFindParts"));
    menu->addAction(QStringLiteral("Check &Bill of Materials...\tCtrl+Shift+B"), this,
                    &frmMain::mnuCheckBom_Click)
        ->setObjectName(QStringLiteral("mnuCheckBom"));
    cmdFind->setMenu(menu);
    cmdFind->setPopupMode(QToolButton::MenuButtonPopup);
    connect(cmdFind, &QToolButton::clicked, this, &frmMain::cmdFind_Click);
    connect(new QShortcut(Qt::CTRL | Qt::Key_F, this), &QShortcut::activated, this, &frmMain::cmdFind_Click);
    connect(new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_B, this), &QShortcut::activated, this,
            &frmMain::mnuCheckBom_Click);
}

void frmMain::cmdFind_Click()
{
    if (findWindow == nullptr)
    {
        findWindow = new frmFind(*this);
    }
    findWindow->ComeToFront();
}

void frmMain::mnuCheckBom_Click()
{
    if (bomWindow == nullptr)
    {
        bomWindow = new frmBom(*this);
    }
    bomWindow->ComeToFront();
}

void frmMain::OpenFind(const FindEntries& entries, const PartRecord* replaced)
{
    cmdFind_Click();
    findWindow->Ask(entries, replaced);
}

void frmMain::ShowNamingOfFound()
{
    if (bomWindow != nullptr)
    {
        bomWindow->ShowNaming();
    }
    if (findWindow != nullptr)
    {
        findWindow->ShowNaming();
    }
}

void frmMain::SelectPart(const SelectedPart& part)
{
    library->TakePart(part.Part, part.ChartType, part.Conditions);
    ComeToFront();
}

bool frmMain::PlotPart(const SelectedPart& part)
{
    SelectPart(part);
    return library->PlotShown();
}

bool frmMain::ViewParts(const std::vector<SelectedPart>& parts)
{
    const auto isShown = [this](const SelectedPart& part)
    {
        SelectPart(part);
        bool isNew = true;
        library->IsNewChart(isNew);
        return !isNew || library->PlotShown();
    };
    const bool areShown = std::ranges::all_of(parts, isShown);
    const auto charts = Charts();
    const auto chart = std::ranges::find(charts, library->ShownChart(), &frmGraph::Chart);
    if (areShown && chart != charts.end())
    {
        (*chart)->OpenView();
    }
    return areShown;
}
