#pragma once

#include <QDialog>
#include <QStringList>

#include <functional>

/// Something that the user has to decide.
struct Question
{
    QString title;
    QString text;
    QStringList buttons; ///< the first is the way on, the last is the one that Esc presses
    int standard = 0;    ///< the button that Enter presses; a harmless one where much can be lost
};

/// Puts a question and returns the number of the chosen button.
using Asker = std::function<int(const Question &)>;

/// Shows a question, or a message when there is one button, in a window of its own.
class QuestionDialog : public QDialog
{
    Q_OBJECT

public:
    QuestionDialog(const Question &question, QWidget *parent);

    int answer() const { return m_answer; }

private:
    int m_answer;
};

/// The asker that waits for a QuestionDialog above a widget's window.
Asker dialogAsker(QWidget *widget);
