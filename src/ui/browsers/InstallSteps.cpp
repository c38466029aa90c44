#include "InstallSteps.h"

#include "ExtensionFolder.h"
#include "style/Style.h"
#include "widgets/Controls.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QProcess>

#include <utility>

namespace {

const int usualWidth = 480;
const int digitWidth = 12;

} // namespace

InstallWays InstallWays::system(std::function<void(const QString &text)> copy)
{
    return {[](const QStringList &command) {
                return QProcess::startDetached(command.first(), command.mid(1));
            },
            [](const QUrl &url) { QDesktopServices::openUrl(url); }, std::move(copy),
            [](bool forFirefox) {
                return extensionFolder(QCoreApplication::applicationDirPath(), forFirefox);
            }};
}

InstallSteps::InstallSteps(const BrowserInfo &browser, const InstallWays &ways, const Theme &theme,
                           QWidget *parent)
    : FramedDialog(tr("Add the extension to %1").arg(browser.name), theme, parent)
    , m_browser(browser)
    , m_ways(ways)
{
    setObjectName(QStringLiteral("installSteps"));
    setAttribute(Qt::WA_DeleteOnClose);
    body().setSpacing(Style::gap);
    const QString folder = ways.folder(browser.isFirefox());
    if (folder.isEmpty()) {
        auto *missing = makeLabel(tr("The extension did not come with this program. Install the "
                                     "program anew to get it."),
                                  "text", this);
        missing->setWordWrap(true);
        keepTextHeight(*missing, Style::scaled(usualWidth) - 2 * Style::margin);
        body().addWidget(missing);
    } else {
        addSteps(folder);
    }
    body().addStretch();
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addStretch();
    auto *start = makeButton(tr("Open %1").arg(browser.name), "plain", this);
    start->setObjectName(QStringLiteral("openBrowserButton"));
    connect(start, &QPushButton::clicked, this, [this] { m_ways.start({m_browser.executable}); });
    auto *close = makeButton(tr("Close"), "primary", this);
    close->setObjectName(QStringLiteral("closeStepsButton"));
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    buttons->addWidget(start);
    buttons->addWidget(close);
    body().addLayout(buttons);
    setMinimumWidth(Style::scaled(usualWidth));
}

void InstallSteps::addSteps(const QString &folder)
{
    const bool isFirefox = m_browser.isFirefox();
    const QString address = isFirefox ? QStringLiteral("about:debugging#/runtime/this-firefox")
                                      : QStringLiteral("chrome://extensions");
    auto *copy = makeButton(tr("Copy"), "plain", this);
    copy->setObjectName(QStringLiteral("copyAddress"));
    copy->setAccessibleName(tr("Copy the address"));
    connect(copy, &QPushButton::clicked, this, [this, address] { m_ways.copy(address); });
    auto *show = makeButton(tr("Show folder"), "plain", this);
    show->setObjectName(QStringLiteral("showFolder"));
    connect(show, &QPushButton::clicked, this,
            [this, folder] { m_ways.open(QUrl::fromLocalFile(folder)); });
    auto *card = makeCard(this);
    auto *rows = new QVBoxLayout(card);
    rows->setContentsMargins(Style::margin, Style::gap, Style::margin, Style::gap);
    rows->setSpacing(Style::gap);
    rows->addWidget(
        makeStep(1, tr("In %1 open the address %2").arg(m_browser.name, address), copy));
    if (isFirefox) {
        rows->addWidget(makeStep(2,
                                 tr("Choose “Load Temporary Add-on…” and the file “manifest.json” "
                                    "in the folder of the extension"),
                                 show));
        rows->addWidget(makeStep(
            3, tr("Come back here: the program asks whether Firefox may connect"), nullptr));
    } else {
        rows->addWidget(makeStep(2, tr("Switch on “Developer mode”"), nullptr));
        rows->addWidget(
            makeStep(3, tr("Choose “Load unpacked” and the folder of the extension"), show));
    }
    body().addWidget(card);
    auto *path = makeLabel(QDir::toNativeSeparators(folder), "muted", this);
    path->setObjectName(QStringLiteral("extensionFolder"));
    path->setWordWrap(true);
    path->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    path->setAccessibleName(tr("Folder of the extension"));
    body().addWidget(path);
    if (isFirefox) {
        auto *note = makeLabel(tr("Firefox forgets an extension that was added this way when it "
                                  "is closed."),
                               "muted", this);
        note->setWordWrap(true);
        keepTextHeight(*note, Style::scaled(usualWidth) - 2 * Style::margin);
        body().addWidget(note);
    }
}

QWidget *InstallSteps::makeStep(int number, const QString &text, QWidget *button)
{
    auto *row = new QWidget(this);
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins({});
    line->setSpacing(Style::gap);
    auto *digit = makeLabel(QString::number(number), "heading", row);
    digit->setFixedWidth(Style::scaled(digitWidth));
    line->addWidget(digit);
    auto *label = makeLabel(text, "text", row);
    label->setWordWrap(true);
    line->addWidget(label, 1);
    int room = Style::scaled(usualWidth - digitWidth) - 4 * Style::margin - Style::gap;
    if (button) {
        line->addWidget(button);
        room -= button->sizeHint().width() + Style::gap;
    }
    keepTextHeight(*label, room);
    return row;
}

void installExtension(const BrowserInfo &browser, const InstallWays &ways, const Theme &theme,
                      QWidget *owner)
{
    const QStringList command = BrowserDiscovery::installCommand(browser);
    if (!command.isEmpty() && ways.start(command))
        return;
    if (!command.isEmpty() && browser.isFirefox()) {
        ways.open(QUrl(command.last()));
        return;
    }
    auto *steps = new InstallSteps(browser, ways, theme, owner->window());
    steps->show();
}
