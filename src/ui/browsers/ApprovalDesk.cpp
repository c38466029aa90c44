#include "ApprovalDesk.h"

#include "dialogs/Question.h"

#include <QApplication>

#include <utility>

ApprovalDesk::ApprovalDesk(OriginApprovals &approvals, std::function<void()> bringToFront)
    : m_approvals(approvals)
    , m_bringToFront(std::move(bringToFront))
{
    // A frame of the link leads here; the window is not made in the middle of its work.
    connect(&approvals, &OriginApprovals::questionChanged, this, &ApprovalDesk::showQuestion,
            Qt::QueuedConnection);
}

ApprovalDesk::~ApprovalDesk()
{
    setMain(nullptr);
}

void ApprovalDesk::setMain(QWidget *main)
{
    if (m_dialog)
        m_dialog->disconnect(this);
    delete m_dialog;
    m_main = main;
    showQuestion();
}

void ApprovalDesk::showQuestion()
{
    const QString origin = m_approvals.question();
    if (m_dialog && m_origin == origin)
        return;
    if (m_dialog) {
        m_dialog->disconnect(this);
        m_dialog->close();
    }
    if (origin.isEmpty() || !m_main)
        return;
    m_origin = origin;
    m_bringToFront();
    // A window that blocks the main one would block the question, too.
    QWidget *modal = QApplication::activeModalWidget();
    m_dialog = new QuestionDialog(
        {tr("Let Firefox connect?"),
         tr("An extension in Firefox wants to connect to this program. If you allow it, it can "
            "fill your logins into pages and offer to save new ones.\n\nAllow it if you have just "
            "added the extension to Firefox, or to another profile of it. If you do not know "
            "where this comes from, choose “Don't allow”.\n\nYou can change your mind in the "
            "settings, on the page “Browser”."),
         {tr("Allow"), tr("Don't allow")},
         1},
        modal ? modal : m_main.data());
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setModal(false);
    connect(m_dialog, &QDialog::finished, this, [this] { answer(m_dialog->answer()); });
    // It goes unanswered with the window that it stands above.
    connect(m_dialog, &QObject::destroyed, this, &ApprovalDesk::showQuestion, Qt::QueuedConnection);
    m_dialog->show();
}

void ApprovalDesk::answer(int button)
{
    if (button == 0)
        m_approvals.approve(m_origin);
    else
        m_approvals.refuse(m_origin);
}
