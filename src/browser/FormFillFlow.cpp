#include "FormFillFlow.h"

#include "GPMAppSettings.h"
#include "GPMWebSocketServer.h"
#include "ItemForms.h"
#include "LoginForms.h"
#include "PMCreditCard.h"
#include "PMIdentity.h"
#include "PMLogin.h"
#include "SiteAddress.h"

#include <QDebug>

#include <algorithm>

namespace {

const QLatin1String reasonLogin("login");
const QLatin1String reasonCreditCard("creditcard");
const QLatin1String reasonIdentity("identity");
const QLatin1String reasonPlacePassword("placepwd");
const QLatin1String currentNoReload("currentNoReload");

QString textOf(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

QJsonObject documentOf(const QJsonObject &payload)
{
    const QJsonObject result = payload.value(QLatin1String("result")).toObject();
    return result.value(QLatin1String("docinfo")).toObject();
}

bool hasPassword(const QVector<FilledForm> &forms)
{
    return std::any_of(forms.begin(), forms.end(),
                       [](const FilledForm &form) { return form.hasPassword; });
}

/// Moves the form that is to be submitted to the end: the first with a password, else the only one.
/// False when none is to be.
bool putSubmittedFormLast(QVector<FilledForm> &forms)
{
    const auto chosen = std::find_if(forms.begin(), forms.end(),
                                     [](const FilledForm &form) { return form.hasPassword; });
    if (chosen == forms.end())
        return forms.size() == 1;
    std::rotate(chosen, chosen + 1, forms.end());
    return true;
}

QVector<FilledForm> fillItemForms(const QJsonObject &page, const PMListItem &item)
{
    if (const auto *card = qobject_cast<const PMCreditCard *>(&item))
        return fillCardForms(page, *card);
    if (const auto *identity = qobject_cast<const PMIdentity *>(&item))
        return fillIdentityForms(page, *identity);
    return {};
}

} // namespace

struct FormFillFlow::ItemAction
{
    PMListItem::Type type;
    QLatin1String reason;
    const char *notFound;
    const char *wrongType;
    const char *sending;

    static const ItemAction login;
    static const ItemAction creditCard;
    static const ItemAction identity;
};

const FormFillFlow::ItemAction FormFillFlow::ItemAction::login = {
    PMListItem::Login, reasonLogin, "Can't login. Item not found. Item id:",
    "Can't login. Item must be type of [Login]. Item id:", "Send login command. Item id:"};
const FormFillFlow::ItemAction FormFillFlow::ItemAction::creditCard = {
    PMListItem::CreditCard, reasonCreditCard, "Can't login. Item not found. Item id:",
    "Can't fill credit card data. Item must be type of [Credit Card]. Item id:",
    "Send fill credit card command. Item id:"};
const FormFillFlow::ItemAction FormFillFlow::ItemAction::identity = {
    PMListItem::Identity, reasonIdentity, "Can't fill identity. Item not found. Item id:",
    "Can't fill identity data. Item must be type of [Identity]. Item id:",
    "Send fill identity command. Item id:"};

FormFillFlow::FormFillFlow(GPMWebSocketServer &server, FindItem findItem,
                           const GPMAppSettings &settings, Clock clock, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_findItem(std::move(findItem))
    , m_settings(settings)
    , m_clock(std::move(clock))
    , m_waiting(m_clock, this)
{
}

void FormFillFlow::clear()
{
    m_requests.clear();
    m_waiting.forget();
}

/// The item that an action is for; null, and logged, when there is none such.
PMListItem *FormFillFlow::findItem(const ItemAction &action, const QString &itemId) const
{
    PMListItem *item = m_findItem(itemId);
    if (!item) {
        qWarning() << action.notFound << itemId;
        return nullptr;
    }
    if (item->type() != action.type) {
        qWarning() << action.wrongType << itemId;
        return nullptr;
    }
    qDebug() << action.sending << itemId;
    return item;
}

void FormFillFlow::sendRequest(const ItemAction &action, const QString &itemId,
                               const QString &callerId, QJsonObject payload)
{
    FillRequest request;
    request.reason = action.reason;
    request.callerId = m_server.targetCaller(callerId);
    request.fromExtension = !callerId.isEmpty();
    const qint64 timestamp = m_requests.add(itemId, request, m_clock().toMSecsSinceEpoch());
    payload.insert(QStringLiteral("reason"), action.reason);
    payload.insert(QStringLiteral("itemid"), itemId);
    payload.insert(QStringLiteral("timestamp"), QString::number(timestamp));
    m_server.sendDocumentRequest(request.callerId, payload);
}

void FormFillFlow::doLoginDefaultAction(const QString &itemId, const QString &callerId,
                                        const QString &option)
{
    const PMListItem *login = findItem(ItemAction::login, itemId);
    if (!login)
        return;
    const QString address = SiteAddress::withScheme(login->url());
    if (!SiteAddress::parse(address)) {
        Q_EMIT userNotice(tr("Can't login."),
                          tr("Item %1 has wrong url: %2").arg(login->title(), login->url()));
        return;
    }
    if (!m_server.hasConnections()) {
        if (!callerId.isEmpty())
            qWarning() << "Caller id is not empty but there are no connected extensions";
        Q_EMIT openInBrowserRequested(QUrl(address));
        return;
    }
    sendRequest(
        ItemAction::login, itemId, callerId,
        {{QStringLiteral("url"), address}, {QStringLiteral("openmode"), openModeFor(option)}});
}

void FormFillFlow::doCreditCardDefaultAction(const QString &itemId, const QString &callerId,
                                             const QString &option)
{
    Q_UNUSED(option)
    fillOpenPage(ItemAction::creditCard, itemId, callerId);
}

void FormFillFlow::doIdentityDefaultAction(const QString &itemId, const QString &callerId,
                                           const QString &option)
{
    Q_UNUSED(option)
    fillOpenPage(ItemAction::identity, itemId, callerId);
}

void FormFillFlow::fillOpenPage(const ItemAction &action, const QString &itemId,
                                const QString &callerId)
{
    if (!findItem(action, itemId))
        return;
    if (!m_server.hasConnections()) {
        qWarning() << "No connected extensions!";
        Q_EMIT userNotice(tr("No browser is connected"),
                          tr("To fill this into a page, open your browser with the extension."));
        return;
    }
    sendRequest(action, itemId, callerId, {{QStringLiteral("openmode"), currentNoReload}});
}

QString FormFillFlow::openModeFor(const QString &option) const
{
    static const QHash<GPMAppSettings::PluginOpenMode, QString> modes = {
        {GPMAppSettings::Current, QStringLiteral("current")},
        {GPMAppSettings::NewTab, QStringLiteral("newtab")},
        {GPMAppSettings::NewWindow, QStringLiteral("window")}};
    if (option == currentNoReload || option == QLatin1String("current"))
        return option;
    return modes.value(m_settings.pluginOpenMode());
}

void FormFillFlow::placePasswordValue(const QString &password)
{
    if (!m_server.hasConnections()) {
        qWarning() << "No connected extension: it seems like plugins are not installed";
        return;
    }
    const QString callerId = m_server.targetCaller({});
    const qint64 timestamp = m_requests.nextTimestamp(m_clock().toMSecsSinceEpoch());
    m_waiting.start(password, callerId, timestamp);
    m_server.sendDocumentRequest(callerId,
                                 {{QStringLiteral("reason"), reasonPlacePassword},
                                  {QStringLiteral("timestamp"), QString::number(timestamp)},
                                  {QStringLiteral("openmode"), currentNoReload}});
}

void FormFillFlow::parsePluginReplay(const QString &callerId, const QJsonObject &payload)
{
    static const QStringList itemReasons = {reasonLogin, reasonCreditCard, reasonIdentity};
    if (!payload.contains(QLatin1String("reason"))) {
        qWarning() << "Missing plugin replay format: no reason why";
        return;
    }
    if (!payload.contains(QLatin1String("result"))) {
        qWarning() << "Missing plugin replay format";
        return;
    }
    const QString reason = textOf(payload, "reason");
    if (reason == reasonPlacePassword) {
        placeWaitingPassword(callerId, payload);
        return;
    }
    if (!itemReasons.contains(reason)) {
        qWarning() << "Unknown reason for replay";
        return;
    }
    continueFill(callerId, reason, payload, LoginPage::MayBeAskedFor);
}

void FormFillFlow::fillLoginPage(const QString &callerId, const QJsonObject &payload)
{
    continueFill(callerId, reasonLogin, payload, LoginPage::IsThis);
}

void FormFillFlow::placeWaitingPassword(const QString &callerId, const QJsonObject &payload)
{
    if (!m_waiting.isFor(callerId, payload))
        return;
    const QVector<FilledForm> forms = fillPasswordForms(documentOf(payload), m_waiting.password());
    for (const FilledForm &form : forms) {
        QJsonObject instruction = toFillInstruction(form);
        instruction.insert(QStringLiteral("reason"), reasonPlacePassword);
        m_server.sendFillCommand(callerId, instruction);
    }
    m_waiting.forget();
}

std::optional<FillRequest> FormFillFlow::findRequest(const QString &callerId, const QString &reason,
                                                     const QJsonObject &payload)
{
    const auto tag = m_server.parsePluginReplay(callerId, payload);
    if (!tag)
        return std::nullopt;
    const QString itemId = textOf(payload, "itemid");
    std::optional<FillRequest> request = m_requests.find(itemId, tag->timestamp);
    // A login is held to its own site instead, and its password may be asked for minutes later.
    const qint64 age = m_clock().toMSecsSinceEpoch() - tag->timestamp;
    const bool isLate = request && request->reason != reasonLogin && age > answerPatience.count();
    if (isLate)
        m_requests.remove(itemId);
    else if (request && request->callerId == callerId && request->reason == reason)
        return request;
    qWarning() << "Missing item id or timestamp for plugin replay:" << itemId << "at"
               << tag->timestamp << "- discarded";
    return std::nullopt;
}

void FormFillFlow::continueFill(const QString &callerId, const QString &reason,
                                const QJsonObject &payload, LoginPage loginPage)
{
    const std::optional<FillRequest> request = findRequest(callerId, reason, payload);
    if (!request)
        return;
    const QString itemId = textOf(payload, "itemid");
    PMListItem *item = m_findItem(itemId);
    if (!item) {
        qWarning() << "Item not found within current safe object:" << itemId;
        return;
    }
    if (payload.value(QLatin1String("result")).toObject().isEmpty()) {
        qWarning() << "Empty result returned";
        return;
    }
    if (const auto *login = qobject_cast<const PMLogin *>(item))
        fillLogin(*login, *request, payload, loginPage);
    else
        fillItem(*item, *request, payload);
}

/// A card or a person goes into the page that the user sees, whatever its site, and once; and only
/// when nobody on the way can read it.
void FormFillFlow::fillItem(const PMListItem &item, const FillRequest &request,
                            const QJsonObject &payload)
{
    const QString itemId = item.id();
    m_requests.remove(itemId);
    const auto page = SiteAddress::parse(textOf(payload, "tabUrl"));
    if (!page || !page->isSecure()) {
        const bool isCard = item.type() == PMListItem::CreditCard;
        Q_EMIT userNotice(tr("This page is not encrypted"),
                          isCard ? tr("A card is filled into encrypted pages (https) alone.")
                                 : tr("An identity is filled into encrypted pages (https) alone."));
        return;
    }
    const QVector<FilledForm> forms = fillItemForms(documentOf(payload), item);
    if (forms.isEmpty()) {
        Q_EMIT userNotice(tr("Nothing to fill"),
                          tr("The page shows no empty fields for “%1”.").arg(item.title()));
        return;
    }
    for (const FilledForm &form : forms) {
        QJsonObject instruction = toFillInstruction(form);
        instruction.insert(QStringLiteral("reason"), request.reason);
        m_server.sendFillCommand(request.callerId, instruction);
    }
    Q_EMIT itemUsed(itemId);
}

void FormFillFlow::fillLogin(const PMLogin &login, const FillRequest &request,
                             const QJsonObject &payload, LoginPage loginPage)
{
    QVector<FilledForm> forms;
    if (mayFillLogin(login.url(), textOf(payload, "tabUrl"))) {
        reportSiteIcon(login, textOf(payload, "faviconUrl"));
        forms = fillLoginForms(documentOf(payload), login.login(), login.password());
    }
    if (forms.isEmpty()) {
        if (loginPage == LoginPage::MayBeAskedFor)
            askForLoginPage(login, request);
        return;
    }
    // A page that asks for the user name again did not accept it: filling it once more, and
    // submitting, would go round for ever.
    const bool isComplete = hasPassword(forms);
    if (request.hasFilled && !isComplete)
        return;
    sendLoginForms(request.callerId, forms, isSubmitted(login, request));
    // The password may be asked for on the site's next page, which answers the same request.
    const QString itemId = login.id();
    if (isComplete)
        m_requests.remove(itemId);
    else
        m_requests.markFilled(itemId);
    if (!request.hasFilled)
        Q_EMIT itemUsed(itemId);
}

void FormFillFlow::askForLoginPage(const PMLogin &login, const FillRequest &request)
{
    // Once values went out, what follows is the site's own course: a code sent by telephone, or the
    // sign-in of the user's firm.
    if (request.askedForLoginPage || request.hasFilled)
        return;
    m_requests.markAskedForLoginPage(login.id());
    m_server.sendFindLoginPage(request.callerId,
                               {{QStringLiteral("reason"), request.reason},
                                {QStringLiteral("itemid"), login.id()},
                                {QStringLiteral("timestamp"), QString::number(request.timestamp)},
                                {QStringLiteral("url"), SiteAddress::withScheme(login.url())},
                                {QStringLiteral("openmode"), QStringLiteral("getLoginPageData")}});
}

void FormFillFlow::sendLoginForms(const QString &callerId, const QVector<FilledForm> &forms,
                                  bool submit)
{
    QVector<FilledForm> ordered = forms;
    const bool isLastSubmitted = putSubmittedFormLast(ordered) && submit;
    for (int i = 0; i < ordered.size(); ++i) {
        QJsonObject instruction = toFillInstruction(ordered.at(i));
        instruction.insert(QStringLiteral("reason"), reasonLogin);
        instruction.insert(QStringLiteral("submit"), isLastSubmitted && i == ordered.size() - 1);
        m_server.sendFillCommand(callerId, instruction);
    }
}

void FormFillFlow::reportSiteIcon(const PMLogin &login, const QString &iconAddress)
{
    const bool hasBuiltInIcon =
        login.icon().isEmpty() || login.icon().startsWith(QLatin1String(":/icons/"));
    const auto site = SiteAddress::parse(SiteAddress::withScheme(login.url()));
    if (!hasBuiltInIcon || !site || !SiteAddress::parse(iconAddress))
        return;
    qDebug() << "Trying to download favicon:" << iconAddress;
    Q_EMIT siteIconReported(site->host(), iconAddress);
}

bool FormFillFlow::isSubmitted(const PMLogin &login, const FillRequest &request) const
{
    if (login.fillType() != PMFieldTypes::LoginFillType::GlobalSettings)
        return login.fillType() == PMFieldTypes::LoginFillType::FillAndSubmit;
    if (request.fromExtension)
        return m_settings.pluginLoginMode() == GPMAppSettings::PluginFillAndSubmit;
    return m_settings.loginMode() == GPMAppSettings::FillAndSubmit;
}
