#include "Question.h"

#include "style/Style.h"
#include "widgets/Controls.h"
#include "widgets/WindowFrame.h"

#include <QBoxLayout>
#include <QPointer>

namespace {

const int smallestWidth = 380;
const int margin = 20;

} // namespace

QuestionDialog::QuestionDialog(const Question &question, QWidget *parent)
    : QDialog(parent)
    , m_answer(question.buttons.size() - 1)
{
    setObjectName(QStringLiteral("questionDialog"));
    setWindowTitle(question.title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    const auto *frame = new WindowFrame(*this, WindowFrame::Fixed);
    setMinimumWidth(Style::scaled(smallestWidth) + frame->addition().width());

    auto *heading = makeLabel(question.title, "heading", this);
    heading->setWordWrap(true);
    auto *text = makeLabel(question.text, "text", this);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    keepTextHeight(*text, Style::scaled(smallestWidth) - 2 * margin);

    // The way out stands left of the way on, which comes last as everywhere.
    auto *row = new QHBoxLayout;
    row->setSpacing(Style::spacing);
    row->addStretch();
    for (int i = 0; i < question.buttons.size(); ++i) {
        const bool standard = i == question.standard;
        auto *button = makeButton(question.buttons.at(i), standard ? "primary" : "plain", this);
        connect(button, &QPushButton::clicked, this, [this, i] {
            m_answer = i;
            accept();
        });
        row->insertWidget(1, button);
        if (standard) {
            button->setDefault(true);
            button->setFocus();
        }
    }

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(margin, margin, margin, 16);
    all->setSpacing(Style::spacing);
    all->addWidget(heading);
    all->addWidget(text);
    all->addSpacing(Style::gap);
    all->addLayout(row);
    setAccessibleDescription(question.text);
}

Asker dialogAsker(QWidget *widget)
{
    return [widget](const Question &question) {
        // It may have been hidden in the tray, or minimised.
        QWidget *window = widget->window();
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->show();
        const QPointer<QuestionDialog> dialog(new QuestionDialog(question, window));
        // What stands above the browser is not in the way of it.
        dialog->setWindowModality(Qt::WindowModal);
        dialog->exec();
        // The window may have gone meanwhile, and the question with it.
        const int answer = dialog ? dialog->answer() : question.buttons.size() - 1;
        delete dialog;
        return answer;
    };
}
