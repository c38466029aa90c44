#include "Controls.h"

#include "style/Style.h"

#include <QStyle>
#include <QVariant>

QLabel *makeLabel(const QString &text, const char *tone, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setProperty("tone", QLatin1String(tone));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton *makeButton(const QString &text, const char *look, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setProperty("look", QLatin1String(look));
    // Wider than the icon, which is drawn at its front: that is the space before the text.
    button->setIconSize(QSize(Style::iconSize + 6, Style::iconSize));
    button->setCursor(Qt::PointingHandCursor);
    // Enter presses the button that has the keyboard, in a dialog and elsewhere.
    button->setAutoDefault(true);
    return button;
}

QToolButton *makeIconButton(const QIcon &icon, const QString &name, const char *look,
                            QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setProperty("look", QLatin1String(look));
    button->setIcon(icon);
    button->setIconSize(QSize(Style::iconSize, Style::iconSize));
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setFocusPolicy(Qt::TabFocus);
    button->setCursor(Qt::PointingHandCursor);
    const bool small = qstrcmp(look, "plain") == 0;
    const int side = small ? Style::scaled(28) : Style::controlHeight;
    button->setFixedSize(side, side);
    return button;
}

QScrollArea *makeScrollArea(QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return area;
}

QFrame *makeCard(QWidget *parent)
{
    auto *card = new QFrame(parent);
    card->setObjectName(QStringLiteral("card"));
    return card;
}

void setStyleProperty(QWidget &widget, const char *name, const QVariant &value)
{
    if (widget.property(name) == value)
        return;
    widget.setProperty(name, value);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
    widget.update();
}

void keepTextHeight(QLabel &label, int width)
{
    label.ensurePolished();
    label.setMinimumHeight(qMax(0, label.heightForWidth(width)));
}

QHBoxLayout *centred(QWidget *widget)
{
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(widget);
    row->addStretch();
    return row;
}
