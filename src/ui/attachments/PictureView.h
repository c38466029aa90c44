#pragma once

#include <QImage>
#include <QWidget>

/// Shows a picture as large as there is room, but no larger than it is.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    PictureView(const QImage &picture, QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QImage m_picture;
    QPixmap m_scaled;
};
