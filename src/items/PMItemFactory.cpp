#include "PMItemFactory.h"

#include "PMAttachment.h"
#include "PMBankAccount.h"
#include "PMCreditCard.h"
#include "PMDriverLicense.h"
#include "PMFtpAccount.h"
#include "PMIdentity.h"
#include "PMLogin.h"
#include "PMPassport.h"
#include "PMSSN.h"
#include "PMSecureNote.h"
#include "PMSoftwareLicense.h"

std::unique_ptr<PMListItem> makeItem(PMListItem::Type type)
{
    switch (type) {
    case PMListItem::Login:
        return std::make_unique<PMLogin>();
    case PMListItem::CreditCard:
        return std::make_unique<PMCreditCard>();
    case PMListItem::BankAccount:
        return std::make_unique<PMBankAccount>();
    case PMListItem::Identity:
        return std::make_unique<PMIdentity>();
    case PMListItem::Passport:
        return std::make_unique<PMPassport>();
    case PMListItem::SSN:
        return std::make_unique<PMSSN>();
    case PMListItem::DriverLicense:
        return std::make_unique<PMDriverLicense>();
    case PMListItem::SecureNote:
        return std::make_unique<PMSecureNote>();
    case PMListItem::FtpAccount:
        return std::make_unique<PMFtpAccount>();
    case PMListItem::SoftwareLicense:
        return std::make_unique<PMSoftwareLicense>();
    case PMListItem::Attachment:
        return std::make_unique<PMAttachment>();
    case PMListItem::UndefinedItem:
        break;
    }
    return nullptr;
}
