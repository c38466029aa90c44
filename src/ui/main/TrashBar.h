#pragma once

#include <QWidget>

/// What can be done with the whole trash.
class TrashBar : public QWidget
{
    Q_OBJECT

public:
    explicit TrashBar(QWidget *parent);

Q_SIGNALS:
    void restoreRequested();
    void emptyRequested();
};
