#pragma once

#include <QTableView>

class MoveInModel;
class Theme;

/// The preview of an import: Space, or a click at the front of a row, chooses it or leaves it out.
class MoveInTable : public QTableView
{
    Q_OBJECT

public:
    MoveInTable(MoveInModel &model, const Theme &theme, QWidget *parent);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void toggle(const QVector<int> &rows, int leading);

    MoveInModel &m_model;
};
