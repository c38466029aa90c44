#pragma once

#include <QWidget>

class Theme;

/// The strength of a password: four bars and, beside them, its word as a badge.
class StrengthMeter : public QWidget
{
    Q_OBJECT

public:
    StrengthMeter(const Theme &theme, QWidget *parent);

    /// Shows the bars alone, where the word stands elsewhere.
    void hideWord();

    /// 1 to 4; 0 shows nothing.
    void setLevel(int level);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont badgeFont() const;

    const Theme &m_theme;
    int m_level = 0;
    bool m_showsWord = true;
};
