#include "gui/search/frm_vexlo_search_exe.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include "core/session/session_search_exe.h"
#include "gui/effects/effect_frame_controls.h"
#include "gui/platform/elided_label.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

namespace {

using session::SearchExeFlows;
using session::Session;

constexpr int kLeft = 6;
constexpr int kWidth = 268;

void SetText(QLineEdit* box, const std::string& text) {
    const QString q = ToQ(text);
    if (box->text() != q) box->setText(q);
}

}  // namespace

SearchExeFrame::SearchExeFrame(FrmVexlo& window, QFrame* frame) : QObject(frame), m_window(window) {
    const auto run = [this](auto op) {
        return [this, op] { m_window.Run([op](Session& s) { op(s.SearchExe()); }); };
    };
    auto* caption = new QLabel("Search & extract from exe files", frame);
    caption->setGeometry(kLeft, 4, kWidth, 16);

    const char* const kBoxLabel[2] = {"Search in:", "Save to:"};
    for (int k = 0; k < 2; ++k) {
        const int y = 26 + 28 * k;
        auto* label = new QLabel(kBoxLabel[k], frame);
        label->setGeometry(kLeft, y + 3, 64, 16);
        auto* box = new QLineEdit(frame);
        box->setObjectName(QString("txbSearchExeDir%1").arg(k));
        box->setGeometry(kLeft + 66, y, 170, 22);
        connect(box, &QLineEdit::textEdited, this, [this, k](const QString& text) {
            if (m_syncing) return;
            m_window.Run([k, t = text.toStdString()](Session& s) { s.SearchExe().EditSearchDir(k, t); });
        });
        txbSearchExeDir[static_cast<std::size_t>(k)] = box;
        QPushButton* b = MakeFrameButton(frame, "...", "Browse folder to search in", QRect(kLeft + 240, y, 28, 22));
        b->setObjectName(QString("cmdInvokeSearchPath%1").arg(k));
        connect(b, &QPushButton::clicked, this, run([k](SearchExeFlows f) { f.InvokeSearchPath(k); }));
        cmdInvokeSearchPath[static_cast<std::size_t>(k)] = b;
    }

    ckbIncludeSub = new QCheckBox("Incl Subdir        Max", frame);
    ckbIncludeSub->setGeometry(kLeft, 84, 150, 22);
    connect(ckbIncludeSub, &QCheckBox::clicked, this,
            [this](bool on) { m_window.Run([on](Session& s) { s.SearchExe().ClickIncludeSub(on); }); });
    txbMaxIcons = new QLineEdit(frame);
    txbMaxIcons->setObjectName("txbMaxIcons");
    txbMaxIcons->setGeometry(kLeft + 152, 84, 56, 22);
    connect(txbMaxIcons, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (m_syncing) return;
        m_window.Run([t = text.toStdString()](Session& s) { s.SearchExe().EditMaxIcons(t); });
    });
    ckbSmallIcons = new QCheckBox("Small icons", frame);
    ckbSmallIcons->setGeometry(kLeft, 110, 150, 22);
    connect(ckbSmallIcons, &QCheckBox::clicked, this,
            [this](bool on) { m_window.Run([on](Session& s) { s.SearchExe().ClickSmallIcons(on); }); });

    cmdSearchExeInFolderProceed = MakeFrameButton(frame, kProceedText, "", QRect(kLeft, 142, 70, 26));
    cmdSearchExeInFolderProceed->setObjectName("cmdSearchExeInFolderProceed");
    connect(cmdSearchExeInFolderProceed, &QPushButton::clicked, this, run([](SearchExeFlows f) { f.Proceed(); }));
    cmdStopBrowse = MakeFrameButton(frame, "Stop", "", QRect(kLeft + 76, 142, 60, 26));
    cmdStopBrowse->setObjectName("cmdStopBrowse");
    connect(cmdStopBrowse, &QPushButton::clicked, this, run([](SearchExeFlows f) { f.Stop(); }));
    cmdCancel = MakeFrameButton(frame, kCloseText, kCloseToolTip, QRect(kLeft + kWidth - 64, 142, 64, 26));
    connect(cmdCancel, &QPushButton::clicked, this, [this] { m_window.Run([](Session& s) { s.CancelFrame(); }); });

    lblSearchIconsCount = new QLabel(frame);
    lblSearchIconsCount->setObjectName("lblSearchIconsCount");
    lblSearchIconsCount->setGeometry(kLeft, 180, kWidth, 18);
    lblSearchCurrentFile = new ElidedLabel(frame);
    lblSearchCurrentFile->setObjectName("lblSearchCurrentFile");
    lblSearchCurrentFile->setGeometry(kLeft, 202, kWidth, 18);

    m_slices.setInterval(0);
    connect(&m_slices, &QTimer::timeout, this, [this] { RunSlice(); });
}

void SearchExeFrame::RunSlice() {
    Session& s = m_window.session();
    // A handler that lets pending events run is under way: the slice waits for its end.
    if (s.Busy()) return;
    const bool more = s.SearchExe().RunSlice();
    if (more) {
        Sync();
        m_window.SyncStatus();
    } else {
        m_window.SyncFromModel();
    }
}

void SearchExeFrame::Sync() {
    const session::SearchExePanel& panel = m_window.session().SearchExe().State();
    const session::SearchExeControls& c = panel.Controls();
    m_syncing = true;
    for (std::size_t k = 0; k < 2; ++k) {
        SetText(txbSearchExeDir[k], c.SearchExeDir[k]);
        cmdInvokeSearchPath[k]->setEnabled(c.InvokeSearchPathEnabled[k]);
    }
    ckbIncludeSub->setChecked(c.IncludeSub);
    SetText(txbMaxIcons, c.MaxIcons);
    ckbSmallIcons->setChecked(c.SmallIcons);
    cmdSearchExeInFolderProceed->setEnabled(c.ProceedEnabled);
    cmdStopBrowse->setEnabled(c.StopEnabled);
    const QString count = ToQ(c.CountLabel);
    if (lblSearchIconsCount->text() != count) lblSearchIconsCount->setText(count);
    lblSearchCurrentFile->SetFullText(panel.Active() ? ToQ(panel.Search().CurrentFile()) : QString());
    m_syncing = false;
    if (panel.Active() && !m_slices.isActive()) m_slices.start();
    if (!panel.Active()) m_slices.stop();
}

}  // namespace vexlo::gui
