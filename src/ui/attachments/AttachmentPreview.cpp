#include "AttachmentPreview.h"

#include "PictureView.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QPlainTextEdit>

namespace {

const QSize usualSize(640, 460);

} // namespace

AttachmentPreview::AttachmentPreview(const QString &name, const PreviewContent &content,
                                     const Theme &theme, QWidget *parent)
    : FramedDialog(name, theme, parent)
{
    setObjectName(QStringLiteral("attachmentPreview"));
    resize(Style::scaled(usualSize.width()), Style::scaled(usualSize.height()));
    switch (content.kind) {
    case PreviewContent::Text:
        addText(content);
        break;
    case PreviewContent::Picture:
        addPicture(content);
        break;
    case PreviewContent::None:
        addNote(tr("There is no preview for this kind of file."));
        body().addStretch();
        break;
    }
    addButtons(theme);
}

void AttachmentPreview::addNote(const QString &text)
{
    auto *note = makeLabel(text, "muted", this);
    note->setObjectName(QStringLiteral("previewNote"));
    note->setWordWrap(true);
    body().addWidget(note);
}

void AttachmentPreview::addText(const PreviewContent &content)
{
    m_text = new QPlainTextEdit(this);
    m_text->setObjectName(QStringLiteral("previewText"));
    m_text->setAccessibleName(windowTitle());
    m_text->setReadOnly(true);
    m_text->setUndoRedoEnabled(false);
    m_text->setTabChangesFocus(true);
    m_text->setPlainText(content.text);
    body().addWidget(m_text, 1);
    if (content.cut)
        addNote(tr("This is the beginning; save the file to see all of it."));
    m_monospace = new QCheckBox(tr("Letters of one width"), this);
    m_monospace->setObjectName(QStringLiteral("monospaceBox"));
    connect(m_monospace, &QCheckBox::toggled, this, &AttachmentPreview::setMonospace);
    m_text->setFocus();
}

void AttachmentPreview::setMonospace(bool monospace)
{
    const QString family = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    m_text->setStyleSheet(monospace ? QStringLiteral("font-family: '%1';").arg(family) : QString());
}

void AttachmentPreview::addPicture(const PreviewContent &content)
{
    auto *view = new PictureView(content.picture, this);
    view->setObjectName(QStringLiteral("previewPicture"));
    view->setAccessibleName(windowTitle());
    body().addWidget(view, 1);
    addNote(
        tr("%1 × %2 pixels").arg(content.pictureSize.width()).arg(content.pictureSize.height()));
}

void AttachmentPreview::addButtons(const Theme &theme)
{
    auto *open = makeButton(tr("Open in another program"), "plain", this);
    open->setObjectName(QStringLiteral("openElsewhereButton"));
    open->setIcon(theme.icon(QStringLiteral("external-link"), Palette::Text));
    connect(open, &QPushButton::clicked, this, &AttachmentPreview::openRequested);
    auto *save = makeButton(tr("Save as…"), "plain", this);
    save->setObjectName(QStringLiteral("saveAsButton"));
    save->setIcon(theme.icon(QStringLiteral("download"), Palette::Text));
    connect(save, &QPushButton::clicked, this, &AttachmentPreview::saveRequested);
    auto *row = new QHBoxLayout;
    row->setSpacing(Style::spacing);
    if (m_monospace)
        row->addWidget(m_monospace);
    row->addStretch();
    row->addWidget(open);
    row->addWidget(save);
    body().addLayout(row);
}
