// Drawing the controls from the session: pictures, panel labels, frames, status bar, ticks.
#include <QAction>
#include <QFrame>
#include <QLabel>
#include <QToolButton>

#include "gui/shell/frm_vexlo.h"
#include "gui/effects/frm_vexlo_adjust_colors.h"
#include "gui/effects/frm_vexlo_buttonize.h"
#include "gui/effects/frm_vexlo_rotate_angle.h"
#include "gui/effects/frm_vexlo_text.h"
#include "gui/ani/ani_container_view.h"
#include "gui/icons_list/frm_vexlo_icons_list.h"
#include "gui/platform/elided_label.h"
#include "gui/platform/surface_view.h"
#include "gui/print/frm_vexlo_print.h"
#include "gui/search/frm_vexlo_search_exe.h"

namespace vexlo::gui {

namespace {

QColor ToQColor(surface::Color c) {
    return QColor(surface::RedOf(c), surface::GreenOf(c), surface::BlueOf(c));
}

void SetText(QLabel* label, const std::string& text) {
    const QString q = QString::fromStdString(text);
    if (label->text() != q) label->setText(q);
}

}  // namespace

void FrmVexlo::SyncFromModel() {
    const session::FormState& form = m_session.Form();
    picDisp->update();
    // The real-size views show the icon only while one is in the Editing Area.
    const bool inArea = m_session.InArea();
    picIcon->SetSurface(inArea ? &m_session.Icon().Composed() : nullptr);
    picMask->SetSurface(inArea ? &m_session.Icon().Mask() : nullptr);
    for (int i = 0; i < session::kSlotCount; ++i) {
        const auto k = static_cast<std::size_t>(i);
        picPanelIcon[k]->update();
        QPalette pal = lblPanelIcon[k]->palette();
        pal.setColor(QPalette::Window, ToQColor(form.PanelLabelBack[k]));
        lblPanelIcon[k]->setPalette(pal);
    }
    for (auto& [frame, widget] : Frames) widget->setVisible(frame == form.VisibleFrame);

    for (int i = 0; i < 3; ++i)
        Item("mnuOptionsGridline(" + std::to_string(i) + ")")
            ->setChecked(form.GridlineChecked[static_cast<std::size_t>(i)]);
    Item("mnuOptionsDisplayMask")->setChecked(form.DisplayMaskChecked);
    Item("mnuOptionsPromptToSave")->setChecked(form.PromptToSaveChecked);
    Item("mnuOptionsRemindIfBMP")->setChecked(form.RemindIfBmpChecked);
    Item("mnuPaletteSub(0)")->setChecked(form.PaletteMode == 0);
    Item("mnuPaletteSub(1)")->setChecked(form.PaletteMode == 1);
    for (int i = 0; i < 6; ++i)
        Item("mnuBrushSize(" + std::to_string(i) + ")")->setChecked(form.BrushSizeIndex == i);
    const session::FileHistoryMenu& history = m_session.FileHistory();
    for (int i = 0; i <= session::kHistoryEntries; ++i) {
        QAction* entry = Item("mnuFileHistory(" + std::to_string(i) + ")");
        const auto k = static_cast<std::size_t>(i);
        if (i > 0) entry->setText(QString::fromStdString(history.Caption[k]));
        entry->setVisible(history.Visible[k]);
        entry->setEnabled(history.Enabled[k]);
    }
    for (int k = 0; k < session::kToolbarCommands; ++k)
        if (!session::ToolbarButtonFixed(k))
            cmdTB[static_cast<std::size_t>(k)]->setEnabled(
                form.ToolbarEnabled[static_cast<std::size_t>(k)]);
    if (picMask->isVisibleTo(this) != form.DisplayMaskChecked) LayOutIconAndMask();
    SyncToolbox();
    SyncColorsPanel();
    SyncShades();
    SyncSaveAsCursor();
    fraButtonize->Sync();
    fraAdjustPaintedColors->Sync();
    fraText->Sync();
    fraRotateSelectAngle->Sync();
    SyncGradient();
    SyncConfineToMono();
    picANIContainer->Sync();
    fraPrint->Sync();
    fraIconsList->Sync();
    fraSearchExeInFolder->Sync();
    SyncStatus();
}

void FrmVexlo::SyncStatus() {
    const session::StatusBar& status = m_session.Form().Status;
    for (std::size_t i = 0; i < 4; ++i)
        lblStatusPanel[i]->SetFullText(QString::fromStdString(status.Panel[i]));
    imgAlphaOnStatusPanel->setVisible(status.AlphaImageVisible);

    picProgressContainer->setVisible(status.ProgressVisible);
    const int full = picProgressContainer->width();
    picProgress->setFixedWidth(full * status.ProgressPercent / 100);
    lblProgressText->setText(status.ProgressShowsNumber
                                 ? QString::number(status.ProgressPercent) + "%"
                                 : QString());
    lblProgressText->raise();

    for (QLabel* label : {lblDispXY, lblMix, lblRegionMeasure, lblForExtendedFrame})
        label->setVisible(status.InfoLabelsVisible);
    if (status.InfoLabelsVisible) {
        SetText(lblDispXY, status.DispXY);
        SetText(lblMix, status.Mix);
        SetText(lblRegionMeasure, status.RegionMeasure);
        SetText(lblForExtendedFrame, status.ForExtendedFrame);
    }
}

}  // namespace vexlo::gui
