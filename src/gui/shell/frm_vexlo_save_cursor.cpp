// fraSaveAsCursor: the hotspot of the cursor to be saved, by list or by a click on picDisp.
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

void FrmVexlo::BuildSaveAsCursorFrame(QFrame* frame) {
    auto* caption = new QLabel("Save As Cursor", frame);
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);
    caption->setGeometry(8, 4, 250, 18);
    auto* hint = new QLabel("Hotspot: choose it below or click the\nEditing Area at the hotspot.", frame);
    hint->setGeometry(8, 28, 250, 36);
    static const char* const kAxis[2] = {"X", "Y"};
    for (int i = 0; i < 2; ++i) {
        auto* label = new QLabel(kAxis[i], frame);
        label->setGeometry(12 + i * 100, 74, 14, 22);
        auto* list = new QComboBox(frame);
        list->setObjectName(QString("cboCursorHotSpot%1").arg(i));
        for (int v = 0; v <= 31; ++v) list->addItem(QString::number(v));
        list->setGeometry(28 + i * 100, 74, 60, 22);
        connect(list, &QComboBox::activated, this, [this, i](int index) {
            Run([i, index](session::Session& s) { s.ChooseHotspot(i, index); });
        });
        cboCursorHotSpot[static_cast<std::size_t>(i)] = list;
    }
    auto* proceed = new QPushButton("Proceed", frame);
    proceed->setObjectName("cmdSaveAsCursorProceed");
    proceed->setGeometry(8, 262, 80, 26);
    connect(proceed, &QPushButton::clicked, this,
            [this] { Run([](session::Session& s) { s.SaveDialogFlow(3); }); });
    auto* cancel = new QPushButton("Cancel", frame);
    cancel->setGeometry(180, 262, 80, 26);
    connect(cancel, &QPushButton::clicked, this,
            [this] { Run([](session::Session& s) { s.CancelFrame(); }); });
}

void FrmVexlo::SyncSaveAsCursor() {
    for (std::size_t i = 0; i < 2; ++i)
        if (cboCursorHotSpot[i]->currentIndex() != m_session.Form().CursorHotSpot[i])
            cboCursorHotSpot[i]->setCurrentIndex(m_session.Form().CursorHotSpot[i]);
}

}  // namespace vexlo::gui
