#pragma once
// A session with scripted dialogs for the animated cursor tests, the buttons of its container by
// their roles, a fake Timer1 and the fixture paths.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "core/session/session.h"
#include "support/scripted_host.h"
#include "support/test_bytes.h"
#include "support/test_folder.h"

namespace vexlo::test {

// cmdANI(k) by role.
enum AniButton {
    kAniClose = 0, kAniResize = 1, kAniMinimize = 2, kAniNew = 3, kAniOpen = 4, kAniSave = 5, kAniSet = 7,
    kAniTest = 8, kAniProperty = 9, kAniFromArea = 10, kAniToArea = 11, kAniAddBelow = 12, kAniAddAbove = 13,
    kAniRemove = 14, kAniLoadIcon = 15, kAniShiftUp = 16, kAniShiftDown = 17, kAniGoUp = 18, kAniGoDown = 19
};

// Timer1 on a clock that the test moves by hand: it ticks each time its interval has run
// since it was switched on, last set to another interval, or last ticked.
class FakeAniTimer : public session::AniTimer {
public:
    void Set(bool enabled, int intervalMs) override {
        if (enabled && (!m_enabled || intervalMs != m_interval)) m_elapsed = 0;
        m_enabled = enabled;
        m_interval = intervalMs;
    }
    void Advance(int ms) {
        for (int t = 0; t < ms; ++t) {
            ++now;
            if (m_enabled && ++m_elapsed >= m_interval) {
                m_elapsed = 0;
                onTick();
            }
        }
    }
    bool Enabled() const { return m_enabled; }
    int Interval() const { return m_interval; }

    std::function<void()> onTick;
    int now = 0;

private:
    bool m_enabled = false;
    int m_interval = 0;
    int m_elapsed = 0;
};

class AniFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        session::Directories dirs;
        dirs.TempDir = folder.Dir().string() + "/";
        s.SetDirectories(dirs);
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
        s.SetAniTimer(&timer);
        timer.onTick = [this] { s.AniTimerTick(); };
    }
    void TearDown() override { s.SetAniTimer(nullptr); }

    static std::string Ico(const std::string& name) { return FixturePathOf("ico/" + name); }
    static std::string Ani(const std::string& name) { return FixturePathOf("ani/" + name); }
    std::string Path(const std::string& name) const { return folder.Path(name); }

    void Click(int k) { s.ClickAniButton(k); }
    // The container shown and a new session of one frame.
    void StartNew() {
        s.RunMenuItem("mnuANIFileCreateOrEdit");
        Click(kAniNew);
    }
    // An icon file into the current frame.
    void LoadIcon(const std::string& path) {
        host.AnswerOpen(path);
        Click(kAniLoadIcon);
    }
    const session::AniSession& ani() const { return s.Ani(); }
    const surface::Surface& Image(int frame) const { return ani().Frames().AniImages[static_cast<std::size_t>(frame)]; }
    const surface::Surface& Mask(int frame) const { return ani().Frames().AniMasks[static_cast<std::size_t>(frame)]; }
    int Jiffies(int frame) const { return ani().Frames().AniFrames[static_cast<std::size_t>(frame - 1)].Jiffies; }
    // The jiffies of the current frame alone.
    void SetJiffiesOfCurrent(int jiffies) {
        s.ClickAniSingly(true);
        s.ChooseAniBox(0, jiffies);
        Click(kAniSet);
    }
    const std::string& LastMessage() const { return host.shown.back().text; }

    TestFolder folder{"vexlo_ani_flow"};
    ScriptedHost host;
    session::Session s{host};
    FakeAniTimer timer;
};

}  // namespace vexlo::test
