#pragma once

#include "FrameChoice.h"
#include "WindowShadow.h"

#include <QObject>
#include <QTimer>
#include <QVector>

class QWidget;
class WindowResizer;

/// Gives a window the frame that fits the system. What surrounds the content is in the window's
/// contents margins: the shadow, or a line, and nothing when the window fills the screen.
class WindowFrame : public QObject
{
    Q_OBJECT

public:
    enum Kind { Fixed, Resizable };

    WindowFrame(QWidget &window, Kind kind);

    /// Whether the title bar is ours.
    bool isOurs() const { return m_frame != FrameChoice::System; }

    /// What the frame adds to the size of the content of a window that does not fill the screen.
    QSize addition() const;

    /// Puts the edges and corners above what was added to the window since.
    void raise();

Q_SIGNALS:
    /// The margins have changed, with or without the size of the window.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int border() const;
    bool fillsScreen() const;
    bool isDark() const;
    void choose();
    void follow();
    void place();
    void paint();
    void tellSystem();

    QWidget &m_window;
    Kind m_kind;
    FrameChoice::Frame m_frame;
    bool m_translucent = false;
    WindowShadow m_shadow;
    WindowResizer *m_resizer = nullptr;
    QVector<QWidget *> m_corners;
    QTimer m_tell;
};
