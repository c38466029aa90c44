#pragma once

#include <QWidget>

class MessageLabel;
class QProgressBar;
class QPushButton;

/// The page of an import that is shown while something is done.
class MoveInProgress : public QWidget
{
    Q_OBJECT

public:
    explicit MoveInProgress(QWidget *parent);

    void begin(const QString &text);
    /// @param text what is done; @param total 0 while it is not known
    void setProgress(const QString &text, int done, int total);
    void takeFocus();

Q_SIGNALS:
    /// Told once.
    void cancelRequested();

public Q_SLOTS:
    void cancel();

private:
    MessageLabel *m_text;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};
