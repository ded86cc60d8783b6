#pragma once

// Tells when the colour panel has been closed, so that its modal session can end.
class wxCPWCDelegate {
public:
    // Lets the panel close.
    bool windowShouldClose() {
        m_bIsClosed = true;
        return true;
    }
    bool isClosed() const { return m_bIsClosed; }

private:
    bool m_bIsClosed = false;
};
