#include "FormFillFlow.h"

#include "GPMAppSettings.h"
#include "GPMWebSocketServer.h"
#include "LoginForms.h"
#include "PMLogin.h"
#include "SecretBytes.h"
#include "SiteAddress.h"

#include <QDebug>

#include <algorithm>
#include <chrono>

namespace {

const QLatin1String reasonLogin("login");
const QLatin1String reasonPlacePassword("placepwd");
const QLatin1String currentNoReload("currentNoReload");
constexpr std::chrono::milliseconds passwordPatience = std::chrono::seconds(30);

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

PMLogin *asLogin(PMListItem *item)
{
    auto *login = qobject_cast<PMLogin *>(item);
    if (!login)
        qWarning() << "Can't login. Item must be type of [Login]. Item id:" << item->id();
    return login;
}

} // namespace

FormFillFlow::FormFillFlow(GPMWebSocketServer &server, FindItem findItem,
                           const GPMAppSettings &settings, Clock clock, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_findItem(std::move(findItem))
    , m_settings(settings)
    , m_clock(std::move(clock))
{
    m_forgetTimer.setSingleShot(true);
    m_forgetTimer.setInterval(passwordPatience);
    connect(&m_forgetTimer, &QTimer::timeout, this, &FormFillFlow::forgetWaitingPassword);
}

FormFillFlow::~FormFillFlow()
{
    forgetWaitingPassword();
}

void FormFillFlow::clear()
{
    m_requests.clear();
    forgetWaitingPassword();
}

void FormFillFlow::forgetWaitingPassword()
{
    m_forgetTimer.stop();
    wipe(m_waiting.password);
    m_waiting = WaitingPassword();
}

void FormFillFlow::doLoginDefaultAction(const QString &itemId, const QString &callerId,
                                        const QString &option)
{
    PMListItem *item = m_findItem(itemId);
    if (!item) {
        qWarning() << "Can't login. Item not found. Item id:" << itemId;
        return;
    }
    const PMLogin *login = asLogin(item);
    if (!login)
        return;
    qDebug() << "Send login command. Item id:" << itemId;
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
    FillRequest request;
    request.reason = reasonLogin;
    request.callerId = m_server.targetCaller(callerId);
    request.fromExtension = !callerId.isEmpty();
    const qint64 timestamp = m_requests.add(itemId, request, m_clock().toMSecsSinceEpoch());
    m_server.sendDocumentRequest(request.callerId,
                                 {{QStringLiteral("reason"), reasonLogin},
                                  {QStringLiteral("itemid"), itemId},
                                  {QStringLiteral("timestamp"), QString::number(timestamp)},
                                  {QStringLiteral("url"), address},
                                  {QStringLiteral("openmode"), openModeFor(option)}});
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
    forgetWaitingPassword();
    m_waiting.password = password;
    m_waiting.callerId = m_server.targetCaller({});
    m_waiting.timestamp = m_requests.nextTimestamp(m_clock().toMSecsSinceEpoch());
    m_forgetTimer.start();
    m_server.sendDocumentRequest(
        m_waiting.callerId, {{QStringLiteral("reason"), reasonPlacePassword},
                             {QStringLiteral("timestamp"), QString::number(m_waiting.timestamp)},
                             {QStringLiteral("openmode"), currentNoReload}});
}

void FormFillFlow::parsePluginReplay(const QString &callerId, const QJsonObject &payload)
{
    static const QStringList itemReasons = {reasonLogin, QStringLiteral("creditcard"),
                                            QStringLiteral("identity")};
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

/// Whether the answer is to the request for the waiting password. A late one describes a page that
/// the user may have left. An extension need not name the request that it answers.
bool FormFillFlow::isWaitedFor(const QString &callerId, const QJsonObject &payload) const
{
    if (m_waiting.password.isEmpty() || m_waiting.callerId != callerId)
        return false;
    // A timer stands still while the computer sleeps.
    if (m_clock().toMSecsSinceEpoch() - m_waiting.timestamp > passwordPatience.count())
        return false;
    const QJsonValue timestamp = payload.value(QLatin1String("timestamp"));
    return timestamp.isUndefined() || timestamp.toString().toLongLong() == m_waiting.timestamp;
}

void FormFillFlow::placeWaitingPassword(const QString &callerId, const QJsonObject &payload)
{
    if (!isWaitedFor(callerId, payload))
        return;
    const QVector<FilledForm> forms = fillPasswordForms(documentOf(payload), m_waiting.password);
    for (const FilledForm &form : forms) {
        QJsonObject instruction = toFillInstruction(form);
        instruction.insert(QStringLiteral("reason"), reasonPlacePassword);
        m_server.sendFillCommand(callerId, instruction);
    }
    forgetWaitingPassword();
}

std::optional<FillRequest> FormFillFlow::findRequest(const QString &callerId, const QString &reason,
                                                     const QJsonObject &payload) const
{
    const auto tag = m_server.parsePluginReplay(callerId, payload);
    if (!tag)
        return std::nullopt;
    const QString itemId = textOf(payload, "itemid");
    std::optional<FillRequest> request = m_requests.find(itemId, tag->timestamp);
    if (request && request->callerId == callerId && request->reason == reason)
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
    if (const PMLogin *login = asLogin(item))
        fillLogin(*login, *request, payload, loginPage);
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
