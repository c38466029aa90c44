#include "WindowChecks.h"
#include "../Text.h"

#include "Contrast.h"
#include "widgets/ElidedLabel.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolButton>
#include <QtTest>

namespace {

QString describe(const QWidget &widget, const QString &fault)
{
    return "%1 %2 “%3”: %4"_s.arg(QLatin1String(widget.metaObject()->className()),
                                  widget.objectName(), widget.property("text").toString().left(40),
                                  fault);
}

/// The controls of a window that are in sight, or would be after scrolling.
QVector<QWidget *> controls(QWidget &window)
{
    QVector<QWidget *> shown;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->window() == &window)
            shown.append(widget);
    }
    return shown;
}

bool takesTab(const QWidget &widget)
{
    return widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy();
}

QRect place(const QWidget &widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

QString shownText(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        const auto *tool = qobject_cast<const QToolButton *>(button);
        const bool iconOnly =
            tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull();
        return iconOnly ? QString() : button->text();
    }
    if (const auto *line = qobject_cast<const QLineEdit *>(&widget))
        return line->text().isEmpty() ? line->placeholderText() : line->text();
    return {};
}

bool isClipped(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        if (label->wordWrap())
            return label->heightForWidth(label->width()) > label->height();
        return label->sizeHint().width() > label->width() ||
               label->sizeHint().height() > label->height();
    }
    if (qobject_cast<const QAbstractButton *>(&widget))
        return widget.sizeHint().width() > widget.width() ||
               widget.sizeHint().height() > widget.height();
    if (const auto *line = qobject_cast<const QLineEdit *>(&widget)) {
        // What the user typed may be longer than the field; what the program says may not.
        const int room = line->contentsRect().width() - line->textMargins().left() -
                         line->textMargins().right() - 2 * 9 -
                         line->findChildren<QToolButton *>().size() * 24;
        const int placeholder = line->fontMetrics().horizontalAdvance(line->placeholderText());
        return (placeholder > 0 && placeholder > room) ||
               line->fontMetrics().height() > line->contentsRect().height();
    }
    if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(box);
        const QRect field = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                         QStyle::SC_ComboBoxEditField, box);
        // A path, say, that is shortened has all of it in its tool tip.
        const bool isCut = box->toolTip() != box->currentText() &&
                           box->fontMetrics().horizontalAdvance(box->currentText()) > field.width();
        return isCut || box->fontMetrics().height() > box->contentsRect().height();
    }
    return false;
}

bool scrolls(const QWidget &widget)
{
    return widget.parentWidget() && qobject_cast<QAbstractScrollArea *>(widget.parentWidget());
}

/// Whether a part of the widget lies outside of a parent that does not scroll.
bool isCutOff(const QWidget &widget)
{
    for (const QWidget *inner = &widget; !inner->isWindow(); inner = inner->parentWidget()) {
        const QWidget *parent = inner->parentWidget();
        if (scrolls(*inner) || scrolls(*parent))
            return false;
        const QRect all(widget.mapTo(parent, QPoint()), widget.size());
        if (!parent->rect().contains(all))
            return true;
    }
    return false;
}

/// The contrast of the ink of a text with its ground: the most frequent colour of an area, and the
/// one that differs most from it and is more than a speck.
qreal paintedContrast(const QImage &image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QRgb ground = 0;
    for (auto it = counts.constBegin(); it != counts.constEnd(); ++it) {
        if (it.value() > counts.value(ground))
            ground = it.key();
    }
    qreal best = 1;
    for (auto it = counts.constBegin(); it != counts.constEnd(); ++it) {
        if (it.value() >= 4)
            best = qMax(best, contrast(QColor(it.key()), QColor(ground)));
    }
    return best;
}

} // namespace

QStringList WindowChecks::nameFaults(QWidget &window)
{
    QStringList faults;
    for (QWidget *widget : controls(window)) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy())
            continue;
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        if (!interface)
            faults << describe(*widget, "assistive tools do not see it"_s);
        else if (interface->text(QAccessible::Name).trimmed().isEmpty())
            faults << describe(*widget, "has no name"_s);
        else if (interface->role() == QAccessible::NoRole)
            faults << describe(*widget, "has no role"_s);
    }
    return faults;
}

QStringList WindowChecks::tabFaults(QWidget &window)
{
    QStringList faults;
    QVector<QWidget *> open;
    for (QWidget *widget : controls(window)) {
        if (takesTab(*widget))
            open.append(widget);
    }
    if (open.isEmpty())
        return faults;
    window.activateWindow();
    open.first()->setFocus(Qt::TabFocusReason);
    QVector<QWidget *> way;
    for (int i = 0; i <= 2 * open.size() && window.focusWidget(); ++i) {
        QWidget *at = window.focusWidget();
        if (way.contains(at))
            break;
        way.append(at);
        QTest::keyClick(at, Qt::Key_Tab);
        if (window.focusWidget() == at && open.size() > 1)
            faults << describe(*at, "Tab does not get out of it"_s);
    }
    for (QWidget *widget : open) {
        if (!way.contains(widget) && !widget->isAncestorOf(way.last()))
            faults << describe(*widget, "Tab does not reach it"_s);
    }
    int rises = 0;
    for (int i = 1; i < way.size(); ++i) {
        const QRect before = place(*way.at(i - 1));
        const QRect next = place(*way.at(i));
        const bool sameColumn = next.left() < before.right() && before.left() < next.right();
        // The way round from the last to the first goes up once.
        if (sameColumn && next.bottom() < before.top() && ++rises > 1)
            faults << describe(*way.at(i),
                               "Tab goes up to it from "_s + way.at(i - 1)->objectName());
    }
    return faults;
}

QStringList WindowChecks::clippingFaults(QWidget &window)
{
    QStringList faults;
    for (QWidget *widget : controls(window)) {
        if (shownText(*widget).isEmpty() && !qobject_cast<QComboBox *>(widget))
            continue;
        // It shortens what is too long, with an ellipsis, and has it all in its tool tip.
        if (qobject_cast<ElidedLabel *>(widget))
            continue;
        if (isClipped(*widget))
            faults << describe(*widget, "has %1×%2, needs %3×%4"_s.arg(widget->width())
                                            .arg(widget->height())
                                            .arg(widget->sizeHint().width())
                                            .arg(widget->sizeHint().height()));
        else if (isCutOff(*widget))
            faults << describe(*widget, "reaches out of its parent"_s);
    }
    return faults;
}

QStringList WindowChecks::sizeFaults(const QWidget &window)
{
    // 1366 by 768 points at 125 %, less a task bar.
    const QSize screen(1093, 574);
    const QSize size = window.minimumSize().expandedTo(window.minimumSizeHint());
    if (size.boundedTo(screen) == size)
        return {};
    return {QStringLiteral("needs %1×%2 of the screen").arg(size.width()).arg(size.height())};
}

QStringList WindowChecks::contrastFaults(QWidget &window)
{
    QStringList faults;
    // Twice the size, so that strokes have a core in their own colour.
    const int scale = 2;
    QPixmap pixmap(window.size() * scale);
    pixmap.setDevicePixelRatio(scale);
    window.render(&pixmap);
    const QImage image = pixmap.toImage();
    for (QWidget *widget : controls(window)) {
        const QRect seen = widget->visibleRegion().boundingRect();
        // Of what is scrolled half out of sight there may be no letter to see.
        if (!widget->isEnabled() || shownText(*widget).trimmed().isEmpty() ||
            seen.height() < widget->height())
            continue;
        const QRect area(seen.translated(widget->mapTo(&window, QPoint())));
        const qreal found =
            paintedContrast(image.copy(QRect(area.topLeft() * scale, area.size() * scale)));
        if (found < readableContrast)
            faults << describe(*widget, "contrast %1"_s.arg(found, 0, 'f', 2));
    }
    return faults;
}

QStringList WindowChecks::latinWords(const QString &text)
{
    static const QRegularExpression word("[A-Za-z]{2,}"_s);
    QStringList words;
    for (auto match = word.globalMatch(text); match.hasNext();)
        words << match.next().captured();
    return words;
}

QStringList WindowChecks::latinTexts(QWidget &window, const QSet<QString> &knownWords)
{
    static const QSet<QString> names = [] {
        QStringList all = "Alt Backspace Bitwarden CAPS Ctrl CSV Del Down Enter Esc "
                          "Firefox JSON KeePassXC Mac Meta Return Safari SSD SSDs "
                          "Shift Up Chrome Chromium Edge Wayland FTP IBAN PIN SWIFT "
                          "Skype MasterCard Visa Glaceron Password Manager http "
                          "https chrome password manager settings about logins edge "
                          "passwords extensions MM English Deutsch Espa ol Fran "
                          "ais"_s.split(QLatin1Char(' '));
        // Dates are written as the system does.
        for (int month = 1; month <= 12; ++month)
            all << QLocale::c().monthName(month)
                << QLocale::c().monthName(month, QLocale::ShortFormat);
        return QSet<QString>(all.begin(), all.end());
    }();
    QStringList faults;
    const auto check = [&](const QWidget &widget, const QString &text) {
        for (const QString &word : latinWords(text)) {
            // It may have been cut short.
            const bool known =
                std::any_of(knownWords.begin(), knownWords.end(),
                            [&](const QString &own) { return own.startsWith(word); });
            if (!names.contains(word) && !known) {
                faults << describe(widget, "“%1” not translated: %2"_s.arg(word, text.left(80)));
                return;
            }
        }
    };
    for (QWidget *widget : controls(window)) {
        const auto *line = qobject_cast<const QLineEdit *>(widget);
        check(*widget, line ? line->placeholderText() : shownText(*widget));
        check(*widget, widget->toolTip());
        check(*widget, widget->accessibleName());
        check(*widget, widget->accessibleDescription());
        const auto *view = qobject_cast<const QAbstractItemView *>(widget);
        for (int row = 0; view && view->model() && row < view->model()->rowCount(); ++row)
            check(*widget, view->model()->index(row, 0).data().toString());
    }
    return faults;
}
