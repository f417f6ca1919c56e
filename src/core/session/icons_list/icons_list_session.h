#pragma once
// The Icons List as the main window sees it: the source it lists and how many items it holds.
// While the list is up the current icon is parked; leaving the list empties it. The lots,
// pages, items and their thumbnails belong here as they come.
#include <string>

namespace vexlo::session {

class IconsListSession {
public:
    bool Empty() const { return m_itemCount == 0; }
    int ItemCount() const { return m_itemCount; }
    const std::string& Source() const { return m_source; }
    // The list's loaded items and its picture are emptied.
    void Reset() {
        m_itemCount = 0;
        m_source.clear();
    }

private:
    int m_itemCount = 0;
    std::string m_source;
};

}  // namespace vexlo::session
