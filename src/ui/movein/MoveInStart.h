#pragma once

#include <QWidget>

class DropMark;
class MessageLabel;
class QLabel;
class QListWidget;
class Theme;

/// The first page of an import: choose a file, or drop one, and how to get one.
class MoveInStart : public QWidget
{
    Q_OBJECT

public:
    MoveInStart(const Theme &theme, QWidget *parent);

    void setMessage(const QString &text);
    void takeFocus();

Q_SIGNALS:
    void chooseRequested();

private:
    QWidget *makePlace(const Theme &theme);
    QWidget *makeGuide();
    void showSteps(int program);

    QWidget *m_choose;
    MessageLabel *m_message;
    QListWidget *m_programs;
    QLabel *m_steps;
};
