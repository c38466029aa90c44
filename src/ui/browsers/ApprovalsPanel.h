#pragma once

#include "OriginApprovals.h"

#include <QVector>
#include <QWidget>

class QVBoxLayout;

/// The extensions that the user has decided about, with the way to decide otherwise.
class ApprovalsPanel : public QWidget
{
    Q_OBJECT

public:
    /// The approvals outlive this.
    ApprovalsPanel(OriginApprovals &approvals, QWidget *parent);

private:
    void showAll();
    QWidget *makeRow(const QString &origin, bool approved);

    OriginApprovals &m_approvals;
    QVBoxLayout *m_rows;
    QVector<QWidget *> m_shown;
    QWidget *m_none;
};
