#pragma once

#include "ImportFile.h"

#include <QVector>
#include <QWidget>

class QComboBox;
class QPushButton;
class QScrollArea;
class Theme;

/// Asks what the columns of a CSV file hold whose format is not known.
class MoveInColumns : public QWidget
{
    Q_OBJECT

public:
    MoveInColumns(const Theme &theme, QWidget *parent);

    void setHeader(const QString &fileName, const QStringList &header);
    ImportColumns columns() const;
    void takeFocus();

Q_SIGNALS:
    void accepted();
    void cancelRequested();

private:
    QWidget *makeRow(const QString &name, const QByteArray &guess);
    void showState();

    const Theme &m_theme;
    QWidget *m_text;
    QScrollArea *m_scroll;
    QPushButton *m_onward;
    QVector<QComboBox *> m_choices;
};
