#pragma once

#include <QPointer>
#include <QVector>

class QDialog;
class QWidget;

/// The windows of work that runs, or that tell what became of it: they move from a main window to
/// the one that takes its place, so that no work ends because of a language or a text size. Their
/// texts stay as they are.
class WorkWindows
{
public:
    /// Takes them from a window and all that is above it. They belong to nobody until moveTo().
    explicit WorkWindows(const QWidget &former);

    void moveTo(QWidget &window);

private:
    struct Taken
    {
        QPointer<QDialog> dialog;
        bool wasVisible = false;
    };
    QVector<Taken> m_taken;
};
