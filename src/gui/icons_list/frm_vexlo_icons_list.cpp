#include "gui/icons_list/frm_vexlo_icons_list.h"

#include <QComboBox>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

#include "core/session/session_icons_list.h"
#include "gui/effects/effect_frame_controls.h"
#include "gui/icons_list/icons_list_view.h"
#include "gui/platform/elided_label.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

namespace {

using session::IconsListFlows;
using session::Session;

constexpr int kLeft = 6;
constexpr int kViewTop = 22;

QString BackStyle(surface::Color c) {
    return QString("background-color: #%1%2%3;")
        .arg(surface::RedOf(c), 2, 16, QChar('0'))
        .arg(surface::GreenOf(c), 2, 16, QChar('0'))
        .arg(surface::BlueOf(c), 2, 16, QChar('0'));
}

}  // namespace

IconsListFrame::IconsListFrame(FrmVexlo& window, QFrame* frame) : QObject(frame), m_window(window), m_frame(frame) {
    frame->setAutoFillBackground(true);  // it covers the icon, the mask and the Shift pad
    const auto run = [this](auto op) {
        return [this, op] { m_window.Run([op](Session& s) { op(s.Extraction()); }); };
    };
    lblExtract[0] = new QLabel(frame);
    lblExtract[0]->setGeometry(kLeft, 4, 262, 16);
    lblExtract[0]->setObjectName("lblExtract0");

    auto* box = new QFrame(frame);
    box->setFrameShape(QFrame::Panel);
    box->setFrameShadow(QFrame::Sunken);
    box->setLineWidth(2);
    box->setGeometry(kLeft, kViewTop, session::kListPictureWidth + 4, session::kListViewHeight + 4);
    picIconsListBase = new QWidget(box);
    picIconsListBase->setObjectName("picIconsListBase");
    picIconsListBase->setGeometry(2, 2, session::kListPictureWidth, session::kListViewHeight);
    picIconsList = new IconsListView(&window.session().Extraction().State().Picture(), picIconsListBase);
    picIconsList->setObjectName("picIconsList");
    picIconsList->setToolTip("To load panel, select container then click image.  "
                             "To load editing area, right-click image.");
    connect(picIconsList, &IconsListView::Released, this, [this](Qt::MouseButton b, int x, int y) {
        const bool right = b == Qt::RightButton;
        m_window.Run([=](Session& s) { s.Extraction().ReleaseOnList(right, x, y); });
    });
    VsrIconsList = new QScrollBar(Qt::Vertical, frame);
    VsrIconsList->setObjectName("VsrIconsList");
    VsrIconsList->setGeometry(kLeft + session::kListPictureWidth + 6, kViewTop, 16, session::kListViewHeight + 4);
    connect(VsrIconsList, &QScrollBar::valueChanged, this, [this](int value) {
        m_window.Run([value](Session& s) { s.Extraction().ScrollList(value); });
    });
    connect(picIconsList, &IconsListView::Wheeled, this, [this](int steps) {
        VsrIconsList->setValue(VsrIconsList->value() - steps * VsrIconsList->singleStep());
    });

    const int row1 = kViewTop + session::kListViewHeight + 10;
    cboPanelNum = new QComboBox(frame);
    cboPanelNum->setObjectName("cboPanelNum");
    cboPanelNum->setToolTip("Select lot number");
    cboPanelNum->setGeometry(kLeft, row1, 50, 24);
    connect(cboPanelNum, &QComboBox::activated, this, [this](int index) {
        m_window.Run([index](Session& s) { s.Extraction().ClickLotNumber(index); });
    });
    cmdNextPanel = MakeFrameButton(frame, "Lot >", "Next panel", QRect(kLeft + 54, row1, 44, 24));
    connect(cmdNextPanel, &QPushButton::clicked, this, run([](IconsListFlows f) { f.ClickNextPanel(); }));
    for (int k = 0; k < 4; ++k) {
        QPushButton* b = MakeFrameButton(frame, std::to_string(k + 1), "Page " + std::to_string(k + 1),
                                         QRect(kLeft + 104 + 28 * k, row1, 26, 24));
        b->setObjectName(QString("cmdPageRef%1").arg(k));
        connect(b, &QPushButton::clicked, this, run([k](IconsListFlows f) { f.ClickPageRef(k); }));
        cmdPageRef[static_cast<std::size_t>(k)] = b;
    }
    cmdNextPage = MakeFrameButton(frame, "Page >", "Next page", QRect(kLeft + 218, row1, 50, 24));
    connect(cmdNextPage, &QPushButton::clicked, this, run([](IconsListFlows f) { f.ClickNextPage(); }));

    const int row2 = row1 + 30;
    cmdInvokeFolderOrFileDialog =
        MakeFrameButton(frame, "Source...", "Invoke file/folder dialog", QRect(kLeft, row2, 64, 24));
    connect(cmdInvokeFolderOrFileDialog, &QPushButton::clicked, this,
            run([](IconsListFlows f) { f.InvokeFolderOrFileDialog(); }));
    const char* const kSaveText[2] = {"Save ICO", "Save BMP"};
    const char* const kSaveTip[2] = {"Save all to ICO files in a folder", "Save all as BMP files in a folder"};
    for (int k = 0; k < 2; ++k) {
        QPushButton* b = MakeFrameButton(frame, kSaveText[k], kSaveTip[k], QRect(kLeft + 68 + 68 * k, row2, 64, 24));
        connect(b, &QPushButton::clicked, this, run([k](IconsListFlows f) { f.SaveAllExtractToFiles(k); }));
        cmdSaveAllExtractToFiles[static_cast<std::size_t>(k)] = b;
    }
    cmdCancel = MakeFrameButton(frame, kCloseText, kCloseToolTip, QRect(kLeft + 214, row2, 54, 24));
    connect(cmdCancel, &QPushButton::clicked, this, [this] { m_window.Run([](Session& s) { s.CancelFrame(); }); });

    lblExtract[1] = new QLabel(frame);
    lblExtract[1]->setGeometry(kLeft, row2 + 32, 262, 16);
    lblExtract[1]->setObjectName("lblExtract1");
    lblSource = new ElidedLabel(frame);
    lblSource->setObjectName("lblSource");
    lblSource->setGeometry(kLeft, row2 + 50, 262, 16);
}

void IconsListFrame::Sync() {
    // The frame lies over the icon, the mask and the Shift pad, which are empty meanwhile.
    if (m_frame->isVisible()) m_frame->raise();
    const session::IconsListSession& list = m_window.session().Extraction().State();
    const session::IconsListControls& c = list.Controls();
    lblExtract[0]->setText(ToQ(c.Caption));
    lblExtract[1]->setText(ToQ(c.CountLabel));
    lblExtract[1]->setEnabled(c.CountLabelEnabled);
    {
        const QSignalBlocker block(cboPanelNum);
        if (cboPanelNum->count() != c.LotCount) {
            cboPanelNum->clear();
            for (int i = 1; i <= c.LotCount; ++i) cboPanelNum->addItem(QString::number(i));
        }
        cboPanelNum->setCurrentIndex(c.LotIndex);
        cboPanelNum->setEnabled(c.LotListEnabled);
    }
    cmdNextPanel->setEnabled(c.NextPanelEnabled);
    cmdNextPage->setEnabled(c.NextPageEnabled);
    for (std::size_t k = 0; k < cmdPageRef.size(); ++k) {
        cmdPageRef[k]->setEnabled(c.PageEnabled[k]);
        const QString style = BackStyle(c.PageBack[k]);
        if (cmdPageRef[k]->styleSheet() != style) cmdPageRef[k]->setStyleSheet(style);
    }
    cmdInvokeFolderOrFileDialog->setVisible(c.InvokeVisible);
    for (QPushButton* b : cmdSaveAllExtractToFiles) {
        b->setVisible(c.SaveAllVisible);
        b->setEnabled(c.SaveAllEnabled);
    }
    {
        const QSignalBlocker block(VsrIconsList);
        VsrIconsList->setRange(0, c.ScrollMax);
        VsrIconsList->setSingleStep(c.SmallChange);
        VsrIconsList->setPageStep(c.LargeChange);
        VsrIconsList->setValue(c.ScrollValue);
    }
    picIconsList->move(0, -c.ScrollValue);
    picIconsList->update();
    lblSource->SetFullText(QString::fromStdString(list.Source()));
}

void IconsListFrame::RefreshDuringLot() {
    if (m_sinceShown.isValid() && m_sinceShown.elapsed() < 15) return;
    m_window.SyncFromModel();
    m_sinceShown.restart();
}

}  // namespace vexlo::gui
