#pragma once
// The main window as the window tests start it, and the pictures they keep to be looked at.
#include <gtest/gtest.h>

#include <QDir>
#include <QWidget>
#include <memory>
#include <string>

#include "gui/shell/frm_vexlo.h"

namespace vexlo::test {

// The main window loaded, shown and activated as at start-up with that command line.
inline std::unique_ptr<gui::FrmVexlo> OpenMainWindow(const std::string& commandLine = "") {
    auto window = std::make_unique<gui::FrmVexlo>(commandLine);
    EXPECT_TRUE(window->LoadForm());
    window->show();
    window->FirstActivate();
    return window;
}

// With $VEXLO_SHOT_DIR set, the widget is saved there as NAME.png.
inline void SaveShot(QWidget* widget, const QString& name) {
    const QByteArray dir = qgetenv("VEXLO_SHOT_DIR");
    if (dir.isEmpty()) return;
    QDir().mkpath(QString::fromLocal8Bit(dir));
    widget->grab().save(QDir(QString::fromLocal8Bit(dir)).filePath(name + ".png"));
}

}  // namespace vexlo::test
