#pragma once
// Small makers of the controls that the effect frames share: a button with its caption and
// tooltip, a sunken box around a real-size picture, and a list filled from the core's entries.
#include <QComboBox>
#include <QFrame>
#include <QPushButton>
#include <string>
#include <string_view>
#include <vector>

#include "gui/platform/surface_view.h"

namespace vexlo::gui {

inline QString ToQ(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

inline QPushButton* MakeFrameButton(QWidget* parent, std::string_view caption,
                                    std::string_view tooltip, const QRect& geometry) {
    auto* b = new QPushButton(ToQ(caption), parent);
    if (!tooltip.empty()) b->setToolTip(ToQ(tooltip));
    b->setGeometry(geometry);
    return b;
}

// A sunken box of the given outer geometry with a SurfaceView filling it, the picture centred.
inline SurfaceView* MakeSunkenView(QWidget* parent, const QRect& geometry, const QString& name) {
    auto* box = new QFrame(parent);
    box->setFrameShape(QFrame::Panel);
    box->setFrameShadow(QFrame::Sunken);
    box->setLineWidth(2);
    box->setGeometry(geometry);
    auto* view = new SurfaceView(nullptr, box);
    view->setObjectName(name);
    view->SetCentred(true);
    view->setGeometry(2, 2, geometry.width() - 4, geometry.height() - 4);
    return view;
}

template <typename Entries>
QComboBox* MakeList(QWidget* parent, const Entries& entries, const QRect& geometry) {
    auto* list = new QComboBox(parent);
    for (const auto& e : entries) list->addItem(ToQ(std::string_view(e)));
    list->setGeometry(geometry);
    return list;
}

// The captions every effect frame uses.
inline constexpr std::string_view kProceedText = "Proceed";
inline constexpr std::string_view kCloseText = "Close";
inline constexpr std::string_view kCloseToolTip = "Close/cancel";

}  // namespace vexlo::gui
