// GoogleTest main of the window tests. They run on the offscreen platform unless the caller
// chose one (test discovery runs this binary at build time, without a display). A message box
// that no test scripted fails the test instead of waiting for a click.
#include <gtest/gtest.h>

#include <QApplication>
#include <QByteArray>
#include <QTemporaryDir>

#include "gui/platform/message_box.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // The window keeps its settings under the XDG config folder: a private one per run.
    QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    vexlo::platform::SetMessageBoxHandler([](const std::string& text,
                                             vexlo::host::MsgButtons buttons,
                                             vexlo::host::MsgIcon, const std::string&) {
        ADD_FAILURE() << "Unscripted message box: " << text;
        return vexlo::platform::ClosedBoxAnswer(buttons);
    });
    return RUN_ALL_TESTS();
}
