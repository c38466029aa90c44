#pragma once

#include <QObject>

#include <cstdint>
#include <functional>
#include <memory>

class Platform;

/// Leaves all windows of the program out of screenshots, recordings and shared screens, while the
/// user wants that. For systems where a program can.
class CaptureGuard : public QObject
{
    Q_OBJECT

public:
    /// The call of the system; gets its own handle of a window.
    using Hide = std::function<void(std::uintptr_t window, bool hide)>;

    /// The one for the system; null where a program cannot hide its windows.
    static std::unique_ptr<CaptureGuard> create(Platform &platform, bool hides);

    CaptureGuard(bool hides, Hide hide, QObject *parent = nullptr);

    /// Holds at once, for the windows that are open too.
    void setHides(bool hides);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_hides;
    Hide m_hide;
};
