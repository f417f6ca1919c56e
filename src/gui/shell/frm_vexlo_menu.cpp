// The menu bar and what each item runs.
#include <QAction>
#include <QMenuBar>

#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

void FrmVexlo::BuildMenus() {
    QMenu* file = menuBar()->addMenu("&File");
    static const char* const kNew[3] = {"&New Icon 32x32", "N&ew Icon 16x16", "Ne&w Icon 48x48"};
    static const char* const kNewKeys[3] = {"Ctrl+N", "Ctrl+E", ""};
    for (int i = 0; i < 3; ++i) {
        QAction* a = file->addAction(kNew[i]);
        a->setShortcut(QKeySequence(kNewKeys[i]));
        connect(a, &QAction::triggered, this, [this, i] { Run([i](auto& s) { s.FileNew(i); }); });
        mnuFileNew[static_cast<std::size_t>(i)] = a;
    }
    file->addSeparator();
    static const char* const kOpen[4] = {
        "&Open Icon File  ....", "&Display All Icons In Folder ....",
        "Open &Cursor File (cur) ....", "Open &Bitmap File (bmp/gif/jpg/wfm/ emf) ...."};
    static const char* const kOpenKeys[4] = {"Ctrl+O", "Ctrl+D", "", ""};
    for (int i = 0; i < 4; ++i) {
        QAction* a = file->addAction(kOpen[i]);
        a->setShortcut(QKeySequence(kOpenKeys[i]));
        connect(a, &QAction::triggered, this, [this, i] { Run([i](auto& s) { s.FileOpen(i); }); });
        mnuFileOpen[static_cast<std::size_t>(i)] = a;
    }
    file->addSeparator();
    mnuFileExit = file->addAction("E&xit");
    connect(mnuFileExit, &QAction::triggered, this, &QWidget::close);

    QMenu* options = menuBar()->addMenu("&Options");
    static const char* const kGrid[3] = {"Solid Grid Lines - &Light", "Solid Grid Lines - &Dark",
                                         "Dotted &Grid Lines"};
    for (int i = 0; i < 3; ++i) {
        QAction* a = options->addAction(kGrid[i]);
        a->setCheckable(true);
        connect(a, &QAction::triggered, this,
                [this, i] { Run([i](auto& s) { s.ClickGridline(i); }); });
        mnuOptionsGridline[static_cast<std::size_t>(i)] = a;
    }
    options->addSeparator();
    mnuOptionsDisplayMask = options->addAction("Display &Mask");
    mnuOptionsDisplayMask->setCheckable(true);
    connect(mnuOptionsDisplayMask, &QAction::triggered, this, [this] {
        Run([](auto& s) { s.ClickDisplayMask(); });
        LayOutIconAndMask();
    });
    options->addSeparator();
    mnuOptionsPromptToSave = options->addAction("&Prompt To Save On Icons Panel Switching");
    mnuOptionsPromptToSave->setCheckable(true);
    connect(mnuOptionsPromptToSave, &QAction::triggered, this, [this] {
        Run([](auto& s) { s.Form.PromptToSaveChecked = !s.Form.PromptToSaveChecked; });
    });
    mnuOptionsRemindIfBMP = options->addAction("&Remind To Create Transparent Area If Bitmap");
    mnuOptionsRemindIfBMP->setCheckable(true);
    connect(mnuOptionsRemindIfBMP, &QAction::triggered, this, [this] {
        Run([](auto& s) { s.Form.RemindIfBmpChecked = !s.Form.RemindIfBmpChecked; });
    });

    QMenu* help = menuBar()->addMenu("&Help");
    mnuHelpAbout = help->addAction("&About ....");
    connect(mnuHelpAbout, &QAction::triggered, this, &FrmVexlo::ShowAbout);
}

}  // namespace vexlo::gui
