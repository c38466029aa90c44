#pragma once

#include <QDialog>

class QVBoxLayout;
class Theme;
class TitleBar;
class WindowFrame;

/// A window beside the main one: its title and a button that closes it above its content. The sizes
/// that are set are those of what is seen; a shadow comes on top.
class FramedDialog : public QDialog
{
    Q_OBJECT

public:
    FramedDialog(const QString &title, const Theme &theme, QWidget *parent);

    /// Where the content goes, below the title, within the usual margins.
    QVBoxLayout &body() { return *m_body; }

    /// Shows a widget in place of the title: beside the button that closes, or above the content
    /// where the frame is the system's. Once.
    void setHeader(QWidget *header);

    void resize(const QSize &size);
    void resize(int width, int height) { resize(QSize(width, height)); }
    void setMinimumSize(const QSize &size);
    void setMinimumSize(int width, int height) { setMinimumSize(QSize(width, height)); }
    void setMinimumWidth(int width);
    void setFixedSize(const QSize &size);
    void setFixedSize(int width, int height) { setFixedSize(QSize(width, height)); }
    void setFixedWidth(int width);

private:
    WindowFrame *m_frame;
    TitleBar *m_bar;
    QVBoxLayout *m_body;
};
