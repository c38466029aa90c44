#pragma once

#include <QLabel>

/// A message under a field or a button. What it says is told to assistive tools when it changes.
class MessageLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MessageLabel(QWidget *parent);

    void setMessage(const QString &text);
};
