#pragma once

#include <QLabel>

/// One line of text that ends in "…" where it does not fit.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    ElidedLabel(const char *tone, QWidget *parent);

    void setFullText(const QString &text);
    QString fullText() const { return m_text; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void elide();

    QString m_text;
};
