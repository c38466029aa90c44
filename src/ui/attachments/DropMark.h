#pragma once

#include <QWidget>

class Theme;

/// Covers a widget while something is dragged over it that it would take.
class DropMark : public QWidget
{
    Q_OBJECT

public:
    DropMark(const QString &text, const Theme &theme, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
    const Theme &m_theme;
};
