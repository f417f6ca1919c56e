#pragma once
// The animated cursor frame session as the main window sees it: whether its container
// (picANIContainer) lies over the panel space. The frames, their temporary files and the
// animation test belong here as they come.
namespace vexlo::session {

class AniSession {
public:
    bool ContainerVisible() const { return m_containerVisible; }
    void ShowContainer() { m_containerVisible = true; }
    // The session ends: the container goes.
    void Close() { m_containerVisible = false; }

private:
    bool m_containerVisible = false;
};

}  // namespace vexlo::session
