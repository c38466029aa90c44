#pragma once

#include "widgets/FramedDialog.h"

#include <functional>

class MessageLabel;
class QLabel;
class QProgressBar;
class QPushButton;
class Theme;

/// How far a piece of long work is, with a way to stop it, and in the end what became of it. It
/// is not modal: the work goes on beside everything else, and a lock does not end it. Whoever shows
/// it calls finish() or tell() when the work has ended, however it did.
class ProgressDialog : public FramedDialog
{
    Q_OBJECT

public:
    /// @param text what is being done, and with what
    ProgressDialog(const QString &title, const QString &text, const Theme &theme, QWidget *parent);

    void setText(const QString &text);
    /// @param total 0 while it is not known
    void setProgress(qint64 done, qint64 total);
    /// Work that has to be gone through with takes the button away.
    void setCancellable(bool cancellable);

    /// The work has ended and there is nothing to say.
    void finish();

    /// Something that can be done at the end, such as "Show folder".
    struct Way
    {
        QString text;
        std::function<void()> run;
    };
    /// Says how the work has ended; the user closes the window.
    /// @param good whether it went as it was to
    void tell(bool good, const QString &text, const Way &way = {});

    bool isRunning() const { return m_running; }

    /// Esc and the window's button stop the work, and close the window once it has ended.
    void reject() override;

Q_SIGNALS:
    /// The user wants it to stop; told once.
    void cancelRequested();

private:
    const Theme &m_theme;
    QLabel *m_icon;
    MessageLabel *m_text;
    QProgressBar *m_bar;
    QPushButton *m_way;
    QPushButton *m_close;
    Way m_wayAtEnd;
    bool m_running = true;
    bool m_cancellable = true;
};
