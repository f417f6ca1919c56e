// fraColorsPanel: the brush size, the Current Selected Color and the two palette charts.
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QToolButton>
#include <QToolTip>

#include "gui/shell/frm_vexlo.h"
#include "gui/platform/surface_view.h"

namespace vexlo::gui {

namespace {

QGroupBox* MakeGroup(QWidget* parent, const char* caption, const QRect& geometry) {
    auto* group = new QGroupBox(caption, parent);
    group->setGeometry(geometry);
    return group;
}

QToolButton* MakeSmallButton(QWidget* parent, const QString& text, const char* tooltip,
                             const QRect& geometry) {
    auto* b = new QToolButton(parent);
    b->setText(text);
    b->setToolTip(tooltip);
    b->setGeometry(geometry);
    b->setFocusPolicy(Qt::NoFocus);
    return b;
}

}  // namespace

void FrmVexlo::BuildColorsPanel(QFrame* panel) {
    session::Session& s = m_session;
    fraofColorPanel[0] = MakeGroup(panel, "Brush", QRect(6, 20, 80, 54));
    cboBrushSize = new QComboBox(fraofColorPanel[0]);
    for (int i = 1; i <= 6; ++i) cboBrushSize->addItem(QString::number(i));
    cboBrushSize->setGeometry(10, 22, 60, 24);
    connect(cboBrushSize, &QComboBox::activated, this, [this](int index) {
        if (m_session.FormLoading()) return;
        Run([index](session::Session& session) { session.ClickBrushSize(index); });
    });

    fraofColorPanel[1] = MakeGroup(panel, "Color", QRect(92, 20, 176, 54));
    picColorToUse = new SurfaceView(nullptr, fraofColorPanel[1]);
    picColorToUse->setObjectName("picColorToUse");
    picColorToUse->setGeometry(10, 20, 112, 26);
    picColorToUse->setAutoFillBackground(true);
    picColorToUse->setToolTip("Current Selected Color (Double click to display values)");
    connect(picColorToUse, &SurfaceView::DoubleClicked, this,
            [this] { m_session.DoubleClickColorToUse(); });
    connect(picColorToUse, &SurfaceView::Released, this,
            [this](Qt::MouseButton, Qt::KeyboardModifiers, int, int) {
                Run([](session::Session& session) { session.ReleaseOnColorToUse(); });
            });
    auto* fixedPicture = new SurfaceView(&s.ColorChart(2), fraofColorPanel[1]);
    fixedPicture->setGeometry(132, 16, 32, 32);

    fraofColorPanel[2] = MakeGroup(panel, "256-Color Palette", QRect(6, 80, 262, 96));
    auto* chart48 = new SurfaceView(&s.ColorChart(0), fraofColorPanel[2]);
    chart48->setObjectName("picColorChart0");
    chart48->setGeometry(3, 20, 256, 48);
    connect(chart48, &SurfaceView::Released, this,
            [this](Qt::MouseButton, Qt::KeyboardModifiers, int x, int y) {
                Run([x, y](session::Session& session) { session.ReleaseOnColorChart(0, x, y); });
            });
    auto* pop = MakeSmallButton(fraofColorPanel[2], "...", "Color chart dialog",
                                QRect(6, 70, 40, 22));
    pop->setObjectName("imgPopColorChart");
    connect(pop, &QToolButton::clicked, this,
            [this] { Run([](session::Session& session) { session.PopColorChart(); }); });
    auto* to16 = MakeSmallButton(fraofColorPanel[2], "16", "Change to 16-color chart",
                                 QRect(216, 70, 40, 22));
    to16->setObjectName("imgGet16ColorChart");
    connect(to16, &QToolButton::clicked, this,
            [this] { Run([](session::Session& session) { session.SwitchTo16ColorChart(); }); });

    fraofColorPanel[3] = MakeGroup(panel, "16-Color Palette", QRect(6, 80, 262, 96));
    auto* chart16 = new SurfaceView(&s.ColorChart(1), fraofColorPanel[3]);
    chart16->setObjectName("picColorChart1");
    chart16->setGeometry(51, 20, 160, 40);
    connect(chart16, &SurfaceView::Released, this,
            [this](Qt::MouseButton, Qt::KeyboardModifiers, int x, int y) {
                Run([x, y](session::Session& session) { session.ReleaseOnColorChart(1, x, y); });
            });
    connect(chart16, &SurfaceView::Moved, this,
            [this, chart16](Qt::MouseButtons, Qt::KeyboardModifiers, int x, int y) {
                chart16->setToolTip(QString::fromStdString(m_session.Chart16Tooltip(x, y)));
            });
    auto* to256 = MakeSmallButton(fraofColorPanel[3], "256", "Change to 256-color palette",
                                  QRect(216, 70, 40, 22));
    to256->setObjectName("imgGet256ColorChart");
    connect(to256, &QToolButton::clicked, this,
            [this] { Run([](session::Session& session) { session.SwitchTo256ColorChart(); }); });

    fraColorMixer = MakeGroup(panel, "Color Mixer", QRect(6, 182, 262, 118));
    fraColorMixer->setObjectName("fraColorMixer");
    BuildColorMixer(fraColorMixer);
}

void FrmVexlo::SyncColorsPanel() {
    const session::FormState& form = m_session.Form();
    QPalette pal = picColorToUse->palette();
    const surface::Color c = m_session.SelectedColor();
    pal.setColor(QPalette::Window, QColor(surface::RedOf(c), surface::GreenOf(c), surface::BlueOf(c)));
    picColorToUse->setPalette(pal);
    fraofColorPanel[2]->setVisible(form.ColorChart0Visible);
    fraofColorPanel[3]->setVisible(!form.ColorChart0Visible);
    fraColorMixer->setVisible(form.ColorMixerVisible);
    if (cboBrushSize->currentIndex() != form.BrushSizeIndex)
        cboBrushSize->setCurrentIndex(form.BrushSizeIndex);
    imgColorPicker->setEnabled(form.ColorPickerEnabled);
    SyncColorMixer();
}

}  // namespace vexlo::gui
