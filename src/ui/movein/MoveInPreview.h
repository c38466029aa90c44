#pragma once

#include "MoveInModel.h"

#include <QWidget>

class MoveInTable;
class QLabel;
class QPushButton;
class Theme;

/// The page of an import that shows what will become what.
class MoveInPreview : public QWidget
{
    Q_OBJECT

public:
    MoveInPreview(const Theme &theme, QWidget *parent);

    /// Null drops the former one.
    void setResult(const QString &fileName, const std::shared_ptr<ImportResult> &result);
    QVector<int> chosen() const { return m_model->chosen(); }
    void takeFocus();

Q_SIGNALS:
    void addRequested();
    void cancelRequested();

private:
    QLayout *makeHead(const Theme &theme);
    QLayout *makeFoot();
    void showCounts();

    MoveInModel *m_model;
    MoveInTable *m_table;
    QLabel *m_file;
    QLabel *m_counts;
    QPushButton *m_add;
};
