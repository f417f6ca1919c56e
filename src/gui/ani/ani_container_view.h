#pragma once
// picANIContainer(0): the floating container of the animated cursor session over the panel
// frames of the main window. It holds the film (picFilm in its viewport picANISeriesBase, with
// the scroll bar VsrANISeries), the buttons cmdANI(0..19), the boxes cboANI(0..2) and
// ckbJIFSinglely, the labels lblANI and the test's box picANITest, and runs Timer1. Its
// handlers call the session through the window; Sync draws it from the session's AniSession.
#include <QFrame>
#include <array>

#include "gui/ani/ani_timer.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QScrollBar;
class QToolButton;

namespace vexlo::gui {

class FilmView;
class FrmVexlo;
class SurfaceView;

class AniContainerView : public QFrame {
    Q_OBJECT
public:
    // fraOrigin: where picFraContainer, the space the container moves in, lies in parent.
    AniContainerView(FrmVexlo& form, QWidget* parent, QPoint fraOrigin);

    // Everything drawn from the session as it stands.
    void Sync();

    std::array<QToolButton*, 20> cmdANI{};
    std::array<QComboBox*, 3> cboANI{};
    QCheckBox* ckbJIFSinglely = nullptr;
    std::array<QLabel*, 2> lblANI{};
    QLabel* imgANI = nullptr;
    QWidget* picANISeriesBase = nullptr;
    FilmView* picFilm = nullptr;
    QScrollBar* VsrANISeries = nullptr;
    SurfaceView* picANITest = nullptr;
    const QtAniTimer& Timer1() const { return m_timer; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildTitleBar();
    void BuildFilm();
    void BuildButtons();
    void BuildBoxes();
    // The three small buttons along the top right, after each change of size.
    void LayOutSmallButtons();
    void Tick();
    // The pointer at p in this widget, in picFraContainer's pixels.
    QPoint InFra(const QPoint& p) const;

    FrmVexlo& m_form;
    QPoint m_fraOrigin;
    QtAniTimer m_timer;
    QLabel* m_caption = nullptr;
    bool m_syncing = false;
};

}  // namespace vexlo::gui
