#pragma once

#include "MoveInReport.h"

#include <QWidget>

class MessageLabel;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class Theme;

/// The last page of an import: what came in, what did not and why, and the advice to delete the
/// exported file.
class MoveInEnd : public QWidget
{
    Q_OBJECT

public:
    MoveInEnd(const Theme &theme, QWidget *parent);

    void setReport(const MoveInReport &report, const QString &fileName);
    /// What became of the wish to delete the file.
    void showDeleted(bool deleted, const QString &text);
    void setMessage(const QString &text);
    QString reportText() const { return m_text; }
    void takeFocus();

Q_SIGNALS:
    void copyRequested();
    void saveRequested();
    void deleteRequested();
    void closeRequested();

private:
    QWidget *makeAdvice(const Theme &theme);
    QLayout *makeFoot();

    const Theme &m_theme;
    QLabel *m_icon;
    QLabel *m_title;
    MessageLabel *m_trouble;
    QPlainTextEdit *m_report;
    QWidget *m_reportButtons;
    QLabel *m_advice;
    QPushButton *m_delete;
    QPushButton *m_close;
    MessageLabel *m_message;
    QString m_text;
};
