#pragma once

#include "style/Palette.h"

#include <QPushButton>

class QLabel;
class Theme;

/// Shows how many items have one kind of problem, and chooses that kind.
class HealthTile : public QPushButton
{
    Q_OBJECT

public:
    HealthTile(const QString &text, const QString &icon, Palette::Role color, const Theme &theme,
               QWidget *parent);

    void setCount(int count);
    QSize sizeHint() const override;

private:
    QString m_text;
    QLabel *m_count;
};
