// The Qt-backed platform services: message boxes, the hourglass, the single-instance guard
// and the conversion of pictures.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QCursor>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <filesystem>
#include <functional>

#include "gui/platform/image_convert.h"
#include "gui/platform/message_box.h"
#include "gui/shell/window_host.h"
#include "gui/platform/single_instance.h"
#include "scripted_dialogs.h"

namespace vexlo::platform {
namespace {

using host::MsgAnswer;
using host::MsgButtons;
using host::MsgIcon;

TEST(MessageBox, HandlerReplacesTheBoxAndGetsTheExactText) {
    test::ScriptedHost outer;
    test::ScriptedHost inner;
    gui::WindowHost host;
    test::ScopedScriptedMessageBoxes outerScope(outer);
    {
        test::ScopedScriptedMessageBoxes innerScope(inner);
        inner.Answer(MsgAnswer::No);
        EXPECT_EQ(host.MsgBox("Save changes?\r\nÄnderungen", MsgButtons::YesNoCancel,
                              MsgIcon::Exclamation, host::kTitle),
                  MsgAnswer::No);
    }
    // The inner scope put the outer handler back.
    outer.Answer(MsgAnswer::Ok);
    EXPECT_EQ(ShowMessageBox("x", MsgButtons::Ok, MsgIcon::None, "t"), MsgAnswer::Ok);

    ASSERT_EQ(inner.shown.size(), 1u);
    EXPECT_EQ(inner.shown[0].text, "Save changes?\r\n\xC3\x84nderungen");
    EXPECT_EQ(inner.shown[0].buttons, MsgButtons::YesNoCancel);
    EXPECT_EQ(inner.shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(inner.shown[0].title, "Vexlo");
    EXPECT_EQ(outer.shown.size(), 1u);
}

// The real QMessageBox, driven by a timer once it is the active modal widget.
enum class Act { Close, Escape, Return, ClickNo };

struct RealBoxCase {
    MsgButtons buttons;
    Act act;
    MsgAnswer expected;
};

class RealMessageBox : public ::testing::TestWithParam<RealBoxCase> {
protected:
    void SetUp() override { SetMessageBoxHandler({}); }
    void TearDown() override { SetMessageBoxHandler(m_saved); }

private:
    MessageBoxHandler m_saved = CurrentMessageBoxHandler();
};

TEST_P(RealMessageBox, AnswersTheButtonOrAsAClosedBox) {
    const RealBoxCase c = GetParam();
    QString seenText, seenTitle;
    QMessageBox::Icon seenIcon = QMessageBox::NoIcon;
    QTimer timer;
    timer.setInterval(10);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible()) return;
        timer.stop();
        seenText = box->text();
        seenTitle = box->windowTitle();
        seenIcon = box->icon();
        switch (c.act) {
            case Act::Close: box->close(); break;
            case Act::Escape: QTest::keyClick(box, Qt::Key_Escape); break;
            case Act::Return: QTest::keyClick(box, Qt::Key_Return); break;
            case Act::ClickNo: box->button(QMessageBox::No)->click(); break;
        }
    });
    timer.start();
    EXPECT_EQ(ShowMessageBox("one\r\ntwo", c.buttons, MsgIcon::Question, "Vexlo"), c.expected);
    EXPECT_EQ(seenText, QStringLiteral("one\ntwo"));
    EXPECT_EQ(seenTitle, QStringLiteral("Vexlo"));
    EXPECT_EQ(seenIcon, QMessageBox::Question);
}

std::string RealBoxCaseName(const ::testing::TestParamInfo<RealBoxCase>& info) {
    static const char* const kButtons[] = {"Ok", "OkCancel", "YesNoCancel", "YesNo"};
    static const char* const kActs[] = {"Close", "Escape", "Return", "ClickNo"};
    return std::string(kButtons[static_cast<int>(info.param.buttons)]) + "_" +
           kActs[static_cast<int>(info.param.act)];
}

INSTANTIATE_TEST_SUITE_P(
    Answers, RealMessageBox,
    ::testing::Values(RealBoxCase{MsgButtons::Ok, Act::Close, MsgAnswer::Ok},
                      RealBoxCase{MsgButtons::OkCancel, Act::Close, MsgAnswer::Cancel},
                      RealBoxCase{MsgButtons::YesNoCancel, Act::Close, MsgAnswer::Cancel},
                      RealBoxCase{MsgButtons::YesNo, Act::Close, MsgAnswer::No},
                      RealBoxCase{MsgButtons::YesNo, Act::Escape, MsgAnswer::No},
                      RealBoxCase{MsgButtons::OkCancel, Act::Escape, MsgAnswer::Cancel},
                      RealBoxCase{MsgButtons::OkCancel, Act::Return, MsgAnswer::Ok},
                      RealBoxCase{MsgButtons::YesNoCancel, Act::Return, MsgAnswer::Yes},
                      RealBoxCase{MsgButtons::YesNoCancel, Act::ClickNo, MsgAnswer::No}),
    RealBoxCaseName);

TEST(WindowHost, NestedHourglassLeavesNoOverrideCursor) {
    ASSERT_EQ(QGuiApplication::overrideCursor(), nullptr);
    {
        gui::WindowHost host;
        host.SetHourglass(true);
        host.SetHourglass(true);
        host.SetHourglass(false);
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        host.SetHourglass(false);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        host.SetHourglass(false);  // an extra "off" must not pop anyone else's cursor
        QGuiApplication::setOverrideCursor(QCursor(Qt::CrossCursor));
        host.SetHourglass(false);
        EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
        QGuiApplication::restoreOverrideCursor();
        host.SetHourglass(true);  // left on: the host's end removes it
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

std::string UniqueKey(const char* name) {
    return std::string("vexlo-test-") + name + "-" + std::to_string(::getpid());
}

TEST(SingleInstance, SecondFailsWhileTheFirstHoldsAndSucceedsAfter) {
    const std::string key = UniqueKey("hold");
    SingleInstance second(key);
    {
        SingleInstance first(key);
        ASSERT_TRUE(first.TryAcquire());
        EXPECT_TRUE(first.TryAcquire());
        EXPECT_FALSE(second.TryAcquire());
        // A running instance's lock stays valid however old it is.
        std::filesystem::last_write_time(first.LockFilePath(),
                                         std::filesystem::file_time_type::clock::now() -
                                             std::chrono::hours(2));
        EXPECT_FALSE(second.TryAcquire());
    }
    EXPECT_TRUE(second.TryAcquire());
}

TEST(SingleInstance, TakesOverTheLockOfACrashedInstance) {
    SingleInstance instance(UniqueKey("crash"));
    {
        // What a killed instance leaves: a lock file naming a process that no longer runs.
        QFile stale(QString::fromStdString(instance.LockFilePath()));
        ASSERT_TRUE(stale.open(QIODevice::WriteOnly | QIODevice::Truncate));
        stale.write("999999999\ngui_tests\n\n");
    }
    EXPECT_TRUE(instance.TryAcquire());
}

TEST(ImageConvert, RoundTripKeepsEveryChannelInPlace) {
    surface::Surface s(3, 2, 0xFFFFFF);
    const surface::Color colors[] = {0x000000FF, 0x0000FF00, 0x00FF0000,
                                     0x00123456, 0x00000000, 0x00FFFFFF};
    for (int i = 0; i < 6; ++i) s.SetPixelV(i % 3, i / 3, colors[i]);

    const QImage image = ToQImage(s);
    EXPECT_EQ(image.format(), QImage::Format_RGB32);
    EXPECT_EQ(image.pixel(0, 0), qRgb(255, 0, 0));  // 0x000000FF is pure red
    EXPECT_EQ(image.pixel(2, 0), qRgb(0, 0, 255));
    EXPECT_EQ(image.pixel(0, 1), qRgb(0x56, 0x34, 0x12));
    EXPECT_TRUE(SamePixels(FromQImage(image), s));
}

TEST(ImageConvert, AlphaIsIgnoredNotBlended) {
    for (const QImage::Format format : {QImage::Format_ARGB32, QImage::Format_RGBA8888,
                                        QImage::Format_ARGB32_Premultiplied}) {
        QImage image(2, 1, QImage::Format_ARGB32);
        image.setPixel(0, 0, qRgba(10, 20, 30, 0x80));
        image.setPixel(1, 0, qRgba(200, 100, 50, 0xFF));
        const surface::Surface s = FromQImage(image.convertToFormat(format));
        EXPECT_EQ(s.GetPixel(0, 0), surface::Rgb(10, 20, 30)) << format;
        EXPECT_EQ(s.GetPixel(1, 0), surface::Rgb(200, 100, 50)) << format;
    }
}

}  // namespace
}  // namespace vexlo::platform
