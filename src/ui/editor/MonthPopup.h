#pragma once

#include <QDate>
#include <QFrame>
#include <QVector>

class QLabel;
class QLocale;
class QToolButton;
class Theme;

/// The months of a year below a line, to choose one. Deletes itself when it closes.
class MonthPopup : public QFrame
{
    Q_OBJECT

public:
    MonthPopup(const Theme &theme, const QLocale &locale, QWidget *parent);

    /// Opens at the widget; an invalid date shows this month.
    void open(const QDate &date, const QWidget &at);

Q_SIGNALS:
    /// The first day of the month.
    void chosen(const QDate &date);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QToolButton *makeArrow(const Theme &theme, const QString &icon, const QString &name, int step);
    void step(int years);
    bool onKey(int key, int month);
    void mark();

    QLabel *m_title;
    QVector<QToolButton *> m_months;
    QDate m_date;
    int m_year = 0;
};
