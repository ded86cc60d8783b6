#pragma once

// Records that the colour panel was closed, so that its modal session can end.
class wxCPWCDelegate {
public:
    // Allows the panel to close.
    bool windowShouldClose() {
        m_bIsClosed = true;
        return true;
    }
    bool isClosed() const { return m_bIsClosed; }

private:
    bool m_bIsClosed = false;
};
