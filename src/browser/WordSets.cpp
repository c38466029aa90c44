#include "WordSets.h"

WordSet::WordSet(const char *words)
    : m_words(QString::fromUtf8(words).split(QLatin1Char(' '), Qt::SkipEmptyParts))
{
    for (const QString &word : m_words) {
        m_views.insert(QStringView(word));
        m_initials |= initialOf(word);
    }
}

// clang-format off
const WordSet &harmlessWords()
{
    static const WordSet words(
        "iso confirmez confirmer ressaisissez repetez mit bestatigen bestatigung wiederholen wiederholung confirmar confirme repita repite repetir primer primera "
        "a an the my your you our us we me i is what whats which where and or as on for at to with by in of from if no not "
        "enter please type fill provide add use give get send receive confirm confirmation verify repeat retype re again tell select choose pick insert set see "
        "home house work office personal private business professional mobile landline cell main primary first second default current present "
        "legal full complete whole whom valid active existing new old preferred best day daytime evening night "
        "billing bill shipping ship delivery deliver mailing mail postal post residential residence residency permanent registered registration physical street "
        "contact person account login sign customer client buyer purchaser payer subscriber user member member's visitor patient student applicant "
        "candidate attendee participant registrant passenger traveller traveler donor holder owner cardholder driver renter insured policyholder "
        "employee employer individual resident lead adult self recipient recipients addressee guest receiver sender "
        "public recovery initial initials optional required mandatory needed info information details data field input line txt text box short long only "
        "international national local domestic us usa uk eu ca au canadian american british european german french spanish italian "
        "credit debit bank payment visa mastercard amex card "
        "number numbers address name email phone code date letter letters digits digit digit's chars characters "
        "ihr ihre ihren ihrer dein deine deinen deiner mein meine meinen bitte eingeben angeben der die das den dem des ein eine einen und oder fur von zu zur zum "
        "privat private geschaftlich geschaftliche dienstlich dienstliche mobile abweichende person kunde kunden kundin besteller rechnung lieferung wohnsitz wohnsitzes "
        "tu su mi el la los las un una tus sus y o de del para con introduce introduzca escribe escriba indica indique envio facturacion entrega "
        "residencia contacto contato contatto particular fijo personal cliente titular usuario solicitante comprador fiscal principal actual completo completa "
        "votre vos ton ta tes mon ma mes le les un une et ou pour avec entrez saisissez indiquez livraison facturation domicile residence contact "
        "personnel personnelle professionnel professionnelle fixe client cliente acheteur titulaire principal principale complet complete legal l d "
        "ваш ваша ваше ваши вашу вашего твой твоя мой моя и или для на по с в введите укажите доставки регистрации проживания клиента заказчика покупателя "
        "пользователя плательщика владельца держателя получателя отправителя связи телефона карты почты оплаты чека заказа пассажира участника пациента "
        "лица абонента жительства контактный контактная основной основная полный полное настоящее настоящая "
        "credito debito pagamento carta telefono cellulare posta cartao telefone celular bancaria bancaire bancario banque "
        "il lo gli tuo tua suo sua di e per inserisci spedizione fatturazione consegna residenza "
        "seu sua teu o os e ou da do dos das para com digite informe cobranca entrega envio residencial "
        "je jouw uw mijn de het een en of voor vul din ditt dina ange mitt min och eller for att twoj twoja podaj moj i lub adres senin adin vas vase ve");
    return words;
}

const WordSet &englishHeads()
{
    static const WordSet words("name names firstname lastname surname address email mail phone telephone mobile number city town state county "
                               "province region country zip postcode code street website url site company title birthdate birth dob birthday date expiry expiration");
    return words;
}

const WordSet &turningWords()
{
    static const WordSet words("type types kind kinds format formats preference preferences frequency option options verification status source history rating "
                               "provider carrier consent permission alert alerts notification notifications updates settings visibility privacy lookup finder "
                               "filter sort count total tax group category language currency design style level reason label nickname hint hints strength letzter letzte fruherer fruhere fruheres ehemaliger ehemalige previous former ancien ancienne precedent anterior ultimo бывший прежнии предыдущии reminder "
                               "art typ tipo tipos genre format formato clase choix eleccion formato forma вид тип формат способ rodzaj");
    return words;
}

const WordSet &genitiveWords()
{
    static const WordSet words("of the a an your my de del la el los las le les l d du des un une der des vom von dem den einer eines "
                               "di della dello dei degli do da dos das van het");
    return words;
}

const WordSet &headingWords()
{
    static const WordSet words("you your yourself collect pickup me my i we us details detail information info data profile account contact personal basic general step checkout order "
                               "shipping billing delivery payment pay address register registration sign login join create application apply applicant request booking reservation subscribe "
                               "subscription donation donate customer member membership user form credentials identity checkout where who how welcome new required guest "
                               "ihr ihre ihren du dein deine mein meine uns wir angaben daten informationen kontakt kontaktdaten personliche personlichen personalien adressdaten rechnungsadresse lieferadresse versandadresse "
                               "rechnungsanschrift lieferanschrift anschrift adresse konto kundenkonto anmeldung registrierung registrieren bestellung bestellen kasse schritt zahlung zahlungsart lieferung versand antrag antragsteller formular "
                               "besteller kunde neukunde mitglied mitgliedschaft bewerbung buchung spende willkommen "
                               "vous vos votre nous mon mes coordonnees informations donnees personnelles compte commande commander livraison facturation paiement etape identite inscription adhesion formulaire adherent profil demande reservation don bienvenue "
                               "usted tus sus tu su mi mis datos personales informacion cuenta pedido paso envio entrega facturacion pago registro inscripcion formulario solicitud solicitante reserva perfil contacto compra titular bienvenido "
                               "ваши вы вас нас мои личные данные контактные контакты информация заказ заказа доставка оформление оплата шаг регистрация анкета профиль аккаунт заявка заявитель покупатель заказчик паспортные о себе "
                               "dati ordine fatturazione spedizione registrazione pagamento gegevens bestelling betaling bezorging dane zamowienie wysylka platnosc rejestracja dados pedido entrega pagamento cadastro");
    return words;
}

const WordSet &ownWords()
{
    static const WordSet words("you your my personal applicant ihre ihr dein deine personliche personlichen vous vos votre personnelles tus sus personales ваши личные");
    return words;
}

const WordSet &recipientWords()
{
    static const WordSet words("recipient recipients addressee beneficiary guest guests receiver empfanger empfangers empfangerin "
                               "beschenkten destinatario destinataria beneficiario huesped destinataire beneficiaire получатель получателя ontvanger odbiorca");
    return words;
}
const WordSet &strangerWords()
{
    static const WordSet words("emergency invite einladen inviter invitar пригласить kontoinhaber host spouse husband wife child children kid kids kin beneficiary employer reference references guarantor "
                               "cosigner notfall notfallkontakt ehepartner ehepartnerin kind kinder kindes arbeitgeber begunstigter burge emergencia conyuge hijo hijos hija "
                               "beneficiario referencia referencias empleador aval urgence conjoint enfant enfants employeur garant beneficiaire экстренный супруг "
                               "супруга супруги ребенок ребенка дети работодатель поручитель");
    return words;
}
// clang-format on
