#include "gui/print/frm_vexlo_print.h"

#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>

#include "core/session/print_job/print_panel.h"
#include "gui/effects/effect_frame_controls.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

namespace {

using session::PrintControl;

QRadioButton* MakeOption(QWidget* parent, const char* caption, const QRect& geometry, QButtonGroup* group, int id) {
    auto* option = new QRadioButton(caption, parent);
    option->setGeometry(geometry);
    group->addButton(option, id);
    return option;
}

}  // namespace

PrintFrame::PrintFrame(FrmVexlo& window, QFrame* frame) : QObject(frame), m_window(window) {
    const auto click = [this](PrintControl control, int index) {
        m_window.Run([control, index](session::Session& s) { s.ClickPrintControl(control, index); });
    };
    auto* sizes = new QButtonGroup(this);
    OptPrintSize[0] = MakeOption(frame, "Size at (%):", QRect(8, 28, 116, 22), sizes, 0);
    OptPrintSize[1] = MakeOption(frame, "Original icon size", QRect(8, 54, 160, 22), sizes, 1);
    OptPrintSize[2] = MakeOption(frame, "Fit to paper", QRect(8, 80, 160, 22), sizes, 2);
    connect(sizes, &QButtonGroup::idClicked, this, [click](int id) { click(PrintControl::SizeOption, id); });
    cboPrintSize = MakeList(frame, session::PrintSizeEntries(), QRect(128, 28, 64, 22));
    cboPrintSize->setObjectName("cboPrintSize");
    connect(cboPrintSize, &QComboBox::activated, this, [click](int i) { click(PrintControl::SizeList, i); });

    auto* margins = new QButtonGroup(this);
    OptPrintMargin[0] = MakeOption(frame, "Set margin (inch):", QRect(8, 120, 160, 22), margins, 0);
    lblMargin = new QLabel("Left                 Top", frame);
    lblMargin->setGeometry(28, 146, 160, 16);
    cboLeftMargin = MakeList(frame, session::MarginEntries(), QRect(28, 164, 70, 22));
    cboLeftMargin->setObjectName("cboLeftMargin");
    cboTopMargin = MakeList(frame, session::MarginEntries(), QRect(110, 164, 70, 22));
    cboTopMargin->setObjectName("cboTopMargin");
    OptPrintMargin[1] = MakeOption(frame, "Center", QRect(8, 196, 160, 22), margins, 1);
    connect(margins, &QButtonGroup::idClicked, this, [click](int id) { click(PrintControl::MarginOption, id); });
    connect(cboLeftMargin, &QComboBox::activated, this, [click](int i) { click(PrintControl::LeftMargin, i); });
    connect(cboTopMargin, &QComboBox::activated, this, [click](int i) { click(PrintControl::TopMargin, i); });

    cmdPrintProceed = MakeFrameButton(frame, kProceedText, "", QRect(8, 262, 80, 26));
    cmdPrintProceed->setObjectName("cmdPrintProceed");
    connect(cmdPrintProceed, &QPushButton::clicked, this,
            [this] { m_window.Run([](session::Session& s) { s.PrintProceed(); }); });
    cmdCancel = MakeFrameButton(frame, kCloseText, kCloseToolTip, QRect(94, 262, 80, 26));
    connect(cmdCancel, &QPushButton::clicked, this,
            [this] { m_window.Run([](session::Session& s) { s.CancelFrame(); }); });
}

void PrintFrame::Sync() {
    const session::PrintPanel& p = m_window.session().PrintFrame();
    OptPrintSize[static_cast<std::size_t>(p.SizeOption())]->setChecked(true);
    OptPrintMargin[static_cast<std::size_t>(p.MarginOption())]->setChecked(true);
    cboPrintSize->setCurrentIndex(p.SizeListIndex());
    cboLeftMargin->setCurrentIndex(p.LeftMarginIndex());
    cboTopMargin->setCurrentIndex(p.TopMarginIndex());
    const bool margins = p.MarginsEnabled();
    for (QWidget* w : {static_cast<QWidget*>(OptPrintMargin[0]), static_cast<QWidget*>(OptPrintMargin[1]),
                       static_cast<QWidget*>(cboLeftMargin), static_cast<QWidget*>(cboTopMargin)})
        w->setEnabled(margins);
}

}  // namespace vexlo::gui
