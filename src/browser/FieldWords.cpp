#include "FieldWords.h"

// clang-format off
const QVector<WordRow<FieldKind>> &fieldWords()
{
    static const QVector<WordRow<FieldKind>> rows = {
    {FieldKind::Never,
     "searchfield|searchbox|searchinput|searchtext|searchterm|searchquery|database name|database user|database username|database password|database url|database host|db name|db user|db password|db host|smtp host|smtp user|smtp password|newsletter|subscribe|search|search for|search term|keyword|keywords|=query|=find|=q|suche|suchen|suchbegriff|buscar|busqueda|rechercher|recherche|"
     "поиск|искать|найти|srch|"
     "=domain|=hostname|coupon|coupon code|couponcode|voucher|voucher code|evoucher|promo|promo code|promocode|promotion code|promotional code|discount|"
     "discount code|discount name|gift card|giftcard|gift certificate|gift code|redeem|referral|referral code|invite code|invitation code|"
     "gutschein|gutscheincode|gutscheinnummer|rabatt|rabattcode|aktionscode|cupon|codigo promocional|codigo de descuento|"
     "tarjeta regalo|vale descuento|code promo|code promotionnel|code de reduction|bon de reduction|code cadeau|carte cadeau|"
     "промокод|промо код|купон|код скидки|подарочная карта|сертификат|"
     "captcha|recaptcha|security check|verification image|enter the characters|characters shown|word as shown|code from picture|"
     "code from the picture|code from image|code shown|anti spam|antispam|quiz math|sicherheitsabfrage|spamschutz|"
     "код с картинки|символы с картинки|капча|introduce los caracteres|recopiez|"
     "one time|=otp|=otc|one time code|one time password|one time passcode|verification code|authentication code|authenticator|"
     "auth code|confirmation code|passcode sent|sms code|=sms|2fa|mfa|totp|=token|token code|digit 1|digit 2|digit 3|digit 4|digit 5|"
     "digit 6|=tan|mtan|sms tan|bestatigungscode|verifizierungscode|sicherheitscode per sms|einmalcode|einmalpasswort|"
     "codigo de verificacion|codigo de confirmacion|code de verification|code de confirmation|code recu|code sms|"
     "код из смс|код из sms|код подтверждения|смс код|одноразовый код|одноразовый пароль|"
     "workspace address|workspace url|workspace name|=workspace|team url|subdomain|"
     "security question|security answer|secret question|secret answer|=answer|your answer|memorable answer|memorable word|"
     "memorable|mother s maiden name|mothers maiden name|first pet|sicherheitsfrage|geheimfrage|antwort|"
     "pregunta de seguridad|respuesta|question secrete|question de securite|reponse|секретный вопрос|=ответ|"
     "honeypot|leave this field blank|leave this field empty|leave blank"},

    {FieldKind::Other,
     "address line 3|street address line 3|address 3|line 3|street 3|street line 3|maiden name|second name|birth name|place of birth|birth place|geburtsname|geburtsort|lugar de nacimiento|lieu de naissance|место рождения|segundo apellido|apellido materno|"
     "nickname|=nick|screen name|display name|preferred name|alias|=handle|avatar|"
     "quantity|qty|=amount|=price|=total|=size|=color|=colour|subject|message|comment|comments|notes|order notes|remarks|special requests|"
     "delivery instructions|instructions|bemerkung|nachricht|betreff|kommentar|mensaje|asunto|comentario|comentarios|commentaire|=objet|"
     "комментарий|сообщение|=тема|"
     "fax|fax number|faxnummer|vat|vat number|vat id|tax id|tax number|ust id|ustid|umsatzsteuer id|steuernummer|cif|nif cif|nif|"
     "numero tva|tva|siret|инн|кпп|"
     "account number|kontonummer|numero de cuenta|"
     "номер документа|серия и номер|серия и номер документа|=dni|dni nif|=nie|codice fiscale|=cf|=cpf|cpf do titular|tussenvoegsel|toevoeging|"
     "passport|passport number|passport no|passport expiry|passport expiry date|doc no|doc exp|doc number|document number|document expiry|"
     "reisepass|reisepassnummer|pasaporte|passeport|паспорт|=серия|ppnumber|ppexpiry|pp number|pp expiry|"
     "social security|social security number|ssn|national insurance number|nino|insurance number|sozialversicherungsnummer|"
     "driver license|drivers license|driving licence|license number|licence number|income|annual income|"
     "frequent flyer|frequent flyer number|ffn|membership number|membership no|member number|member id|loyalty number|customer number|"
     "order number|invoice number|=reference|reference number|registration number|reg number|serial number|issue number|"
     "kundennummer|mitgliedsnummer|vertragsnummer|rechnungsnummer|nationality|staatsangehorigkeit|nacionalidad|nationalite|"
     "гражданство|card nickname|nationalite|"
     "=arrival|arrival time|check in|check out|check in date|check out date|checkin|checkout date|=departure|return date|delivery date|"
     "start date|end date|date established|established|appointment|date of issue|issue date|date of expiry|=from|=to|=destination|=origin|"
     "time zone|timezone|language|sprache|idioma|langue|currency|rating|employees|number of employees|numemployees|company size|team size|size of company|"
     "last four|last 4|last four digits|last 4 digits|=extension|=ext|in honor of|honoree|=client|=tenant|colonia|=age|=alter|=edad|=hint|"
     "титул|titel|phone extension|estado civil|marital status"},

    {FieldKind::BankAccount, "iban|bic|swift|swift code|routing number|sort code|bankleitzahl|blz|verwendungszweck"},

    {FieldKind::UserName,
     "username|user name|user id|userid|user|login|login id|loginid|login name|uname|user login|logon|logon id|account id|account name|"
     "=account|identifier|member login|benutzername|benutzer|benutzerkennung|anmeldename|kennung|zugangsnummer|teilnehmernummer|"
     "usuario|nombre de usuario|identificador|identifiant|utilisateur|nom d utilisateur|numero client|numero de client|"
     "логин|имя пользователя|пользователь|учетная запись"},
    {FieldKind::NewPassword,
     "new password|newpassword|choose a password|choose password|create a password|create password|desired password|"
     "neues passwort|neues kennwort|passwort wahlen|nueva contrasena|crea una contrasena|nouveau mot de passe|"
     "choisissez un mot de passe|новый пароль|подтверждение пароля|придумайте пароль|new password 1"},
    {FieldKind::RepeatedPassword,
     "confirm password|confirm new password|password confirmation|passwordconfirm|repeat password|repeat new password|"
     "retype password|re enter password|re type password|verify password|password again|password2|password 2|pass 2|"
     "passwort wiederholen|kennwort wiederholen|passwort bestatigen|neues passwort bestatigen|repite la contrasena|"
     "repetir contrasena|confirmar contrasena|confirma la contrasena|confirmer le mot de passe|"
     "confirmez le mot de passe|confirmation du mot de passe|повторите пароль|повтор пароля|подтвердите пароль|"
     "new password 2|repeatpassword|confirmpassword|passwort erneut|repetez mot de passe|repetez le mot de passe|"
     "confirmez votre mot de passe|check password|passwd 2|mot de passe verif|confirmation password|contrasena otra vez|"
     "repita la contrasena|confirme la contrasena|еще раз пароль|пароль еще раз|wiederhole passwort"},
    {FieldKind::Password,
     "password|passwd|pasword|pwd|passwort|kennwort|contrasena|=clave|clave de acceso|mot de passe|mdp|пароль|=pin|passphrase|parol"},
    {FieldKind::CurrentPassword,
     "current password|old password|oldpassword|oldpass|old pass|oldpwd|old pwd|current pass|currentpassword|existing password|aktuelles passwort|altes passwort|"
     "bisheriges passwort|contrasena actual|mot de passe actuel|ancien mot de passe|текущий пароль|старый пароль"},

    {FieldKind::CardFirstName, "first name on card|cardholder first name|card first name|card first|cc first name|cc first|"
     "card holder first name|vorname des karteninhabers"},
    {FieldKind::CardLastName, "last name on card|cardholder last name|card last name|card last|cc last name|cc last|"
     "card holder last name|nachname des karteninhabers"},
    {FieldKind::CardHolder,
     "name on card|card user name|card username|credit card holder|credit card owner|credit card holder name|nome do cartao|имя владельца карты|name on the card|name on credit card|name as it appears on card|name as it appears on the card|name as on card|"
     "cardholder|card holder|cardholder name|card holder name|cardholder s name|card holder s name|cardholders name|cc name|ccname|"
     "card name|cardname|cc holder|ccholder|cc owner|card owner|=owner|=holder|holder name|card holder full name|name on your card|"
     "name of cardholder|karteninhaber|name des karteninhabers|name auf der karte|name auf karte|=inhaber|"
     "=titular|titular de la tarjeta|nombre del titular|nombre en la tarjeta|nombre y apellidos del titular|"
     "=titulaire|titulaire de la carte|nom du titulaire|nom sur la carte|nom du porteur|=porteur|"
     "держатель карты|держатель|владелец карты|имя владельца|имя держателя|имя на карте|имя и фамилия на карте"},
    {FieldKind::CardNumber,
     "card number|cardnumber|card num|cardnum|card no|cardno|card nr|card num ber|cc number|ccnumber|cc num|ccnum|cc no|ccno|cc nr|"
     "credit card number|creditcardnumber|credit card no|credit card|creditcard|debit card number|pan|pan 1|pan 2|pan 3|pan 4|"
     "number on card|pmt card nr|kartennummer|kreditkartennummer|karten nr|kartennr|kreditkarte|knr|"
     "numero de tarjeta|nro de tarjeta|nro tarjeta|numero tarjeta|no tarjeta|no de tarjeta|n tarjeta|num tarjeta|numero de la tarjeta|tarjeta de credito|"
     "numero de carte|numero de la carte|numero carte|n de carte|no de carte|numero de carte bancaire|carte bancaire|"
     "номер карты|номер кредитной карты|номер банковской карты|nomer karty|=karta|=cc"},
    {FieldKind::CardCode,
     "cvv|cvv 2|ccv|cvc|cvc 2|csc|cvn|cid|ccid|cc id|cc cid|cc cvv|cc csc|cc code|cc checkcode|check code|checkcode|security code|securitycode|"
     "card code|card security code|card verification|card verification number|card verification code|verification value|"
     "card verification value|security value|c v v|security number|3 digit security number|cv 2|card id number|cvd|"
     "prufziffer|kartenprufnummer|prufnummer|kartenprufziffer|sicherheitscode|sicherheitsnummer|"
     "codigo de seguridad|cod seguridad|codigo seguridad|codigo cvv|codseg|"
     "code de securite|cryptogramme|cryptogramme visuel|code cvv|code cvc|crypto|"
     "код безопасности|код карты|код cvv|код cvc|trehznachny kod"},
    {FieldKind::CardExpiry,
     "expiry|expiry date|expiration|expiration date|=expires|expires on|expires end|=exp|exp date|expdate|expire|expire date|cc exp|card exp|"
     "card expiry|card expiration|cc expiry|cc expires|valid thru|valid through|valid until|valid to|good thru|date of expiry of card|"
     "gultig bis|gultigkeit|ablaufdatum|verfallsdatum|ablauf|gultigkeitsdatum|"
     "caducidad|fecha de caducidad|vencimiento|fecha de vencimiento|fecha de expiracion|valida hasta|"
     "date d expiration|expire fin|date de validite|date expiration|fin de validite|"
     "срок действия|срок|действует до|годна до|=srok|mm yy|mm yyyy|mmyy|mm jj|mm jjjj|mm aa|mm aaaa|мм гг|мм гггг"},
    {FieldKind::CardMonth,
     "expiry month|expiration month|exp month|expmonth|cc exp month|cc month|card month|exp mm|expm|exp m|ccmm|cc mm|cc mo|exp mo|expires month|"
     "cc expires month|expiration date month|expiry date month|ablaufmonat|mes de caducidad|mois d expiration|месяц окончания|srokm|"
     "gultig bis monat|expirymonth|expirationmonth|card exp month"},
    {FieldKind::CardYear,
     "expiry year|expiration year|exp year|expyear|cc exp year|cc year|card year|exp yy|expy|exp y|ccyy|cc yy|cc yr|exp yr|expires year|"
     "cc expires year|expiration date year|expiry date year|ablaufjahr|ano de caducidad|annee d expiration|год окончания|sroky|"
     "gultig bis jahr|expiryyear|expirationyear|card exp year|expiration yr"},
    {FieldKind::CardType,
     "card type|cardtype|cc type|cctype|credit card type|type of card|card brand|payment type|kartentyp|kartenart|tipo de tarjeta|"
     "type de carte|тип карты"},

    {FieldKind::FirstName,
     "first name|firstname|fname|given name|given names|givenname|givennames|forename|forenames|first|f name|legal first name|"
     "vorname|vname|vornamen|nombres|primer nombre|nombre de pila|prenom|prenoms|имя|imya|=ima"},
    {FieldKind::LastName,
     "last name|lastname|lname|surname|family name|familyname|last|l name|legal last name|second last name|nachname|nname|familienname|"
     "zuname|apellido|apellidos|primer apellido|apellido paterno|apellidos paterno|nom de famille|nom famille|фамилия|familiya|familia|=fam"},
    {FieldKind::MiddleName,
     "middle name|middlename|middle names|middle initial|=mi|=m i|additional name|zweiter vorname|segundo nombre|deuxieme prenom|отчество|otchestvo|"
     "patronymic"},
    {FieldKind::FullName,
     "full name|fullname|your name|name and surname|first and last name|contact name|contact person|=contact|recipient|recipient name|"
     "addressee|customer name|real name|complete name|legal name|=author|enter address full name|"
     "vor und nachname|vor und zuname|name vorname|vorname nachname|vollstandiger name|ansprechpartner|empfanger|ihr name|"
     "nombre completo|nombre y apellidos|nombre y apellido|destinatario|nom complet|nom et prenom|nom prenom|destinataire|prenom et nom|"
     "фио|ф и о|fio|получатель|полное имя|имя и фамилия|фамилия имя отчество|ваше имя|контактное лицо|как к вам обращаться"},
    {FieldKind::SomeName, "name|nom|=nm"},
    {FieldKind::Country,
     "country|country region|country name|country code|countrycode|country id|country or region|pais|pays|страна|strana|"
     "address country|country of residence|land region"},
    {FieldKind::State,
     "wojewodztwo|wojewodztwa|state|province|state province|state county|territory|state territory|canton|state id|address state|address province|state or region|state or "
     "province|province id|bundesland|kanton|provincia|estado|область|регион|край|oblast|=edo"},
    {FieldKind::City,
     "city|town|address city|city town|town city|stadt|wohnort|ciudad|poblacion|"
     "ville|город|gorod|=cty"},
    {FieldKind::AddressLine1,
     "address|street|street address|streetaddress|address line 01|address 01|название улицы|address line 1|addressline 1|address 1|addr 1|addr|line 1|street 1|home address|mailing "
     "address|postal address|street name|street and number|street and house number|house no and street|house number and street name|"
     "house number and street|enter address line 1|billing address|shipping address|delivery address|street line|street line 1|"
     "strasse|strasse und hausnummer|strasse hausnummer|strasse nr|strasse und nr|anschrift|adresse|strassenname|=str|"
     "direccion|calle|calle y numero|calle numero|domicilio|rue|adresse n et rue|numero et rue|voie|adresse postale|"
     "улица|адрес|адрес доставки|улица дом|adres|adres 1|ulica|ulitsa"},
    {FieldKind::AddressLine2,
     "address line 02|address 02|billing address 2|shipping address 2|delivery address 2|home address 2|address line 2|addressline 2|address 2|addr 2|line 2|street 2|apartment|apartment suite|apartment suite unit|apt|apt suite|apt unit|suite|"
     "unit|unit number|apt number|address complement|address line two|street address line 2|extra line|street line 2|street "
     "address 2|adresszusatz|=zusatz|adresserganzung|=piso|piso puerta|=complement|complement d adresse|"
     "appartement|квартира|adres 2|enter address line 2|dpto|departamento numero"},
    {FieldKind::HouseNumber,
     "house number|house no|housenumber|=house|street number|hausnummer|hausnr|haus nr|hnr|=nr|numero exterior|n de rue|no de rue|address house number|address house no|numero da residencia|numero de casa|numero de rue|n de voie|no de voie|numero de voie|numero de la voie|"
     "=дом|номер дома|=dom"},
    {FieldKind::PostalCode,
     "address zip|address zip code|address postal code|address postcode|postal code|postalcode|postcode|post code|zip|zip code|zipcode|zip postal code|zip postal|postal|zippostalcode|=zp|bzip|pincode|pin "
     "code|plz|postleitzahl|codigo postal|cod postal|=c p|=cp|cpost|code postal|индекс|почтовый индекс|почтовыи индекс|indeks"},
    {FieldKind::Email,
     "email|e mail|mail|email address|e mail address|mail address|emailaddress|your email|work email|e mail adresse|email adresse|mailadresse|"
     "correo|correo electronico|email address confirm|adresse e mail|adresse email|adresse mail|adresse electronique|courriel|"
     "confirm email|confirm email address|repeat email|=mel|почта|электронная почта|эл почта|эл адрес|pochta|имеил|адрес электронной почты"},
    {FieldKind::Phone,
     "phone|telephone|phone number|phonenumber|phone no|telephone number|telephone no|tel|telno|mobile|mobile number|mobile phone|mobile no|"
     "=cell|cell phone|cellphone|cell number|contact number|contact phone|daytime phone|daytime telephone|telefon|telefonnummer|telefonnr|"
     "handynummer|mobil|mobilnummer|mobiltelefon|rufnummer|festnetz|telefono|telefono movil|movil|celular|tlf|tfno|"
     "numero de telefono|telephone portable|telephone mobile|numero de telephone|телефон|номер телефона|мобильный|мобильный телефон|"
     "мобильныи|контактный телефон|сотовый|msisdn"},
    {FieldKind::PhoneCode,
     "phone country code|phone code|dialing code|dialling code|dial code|dialcode|calling code|country calling code|phone prefix|"
     "international code|landesvorwahl|landervorwahl|landercode|prefijo|prefijo telefonico|prefijo internacional|indicatif|indicatif "
     "telephonique|indicatif pays|код страны|phonecode|phone countrycode"},
    {FieldKind::PhoneArea, "area code|phone area|phone area code|vorwahl|ortsvorwahl|codigo de area|cod area|codigo area|indicatif regional|код города"},
    {FieldKind::PhonePrefix, "phone exchange|exchange code|=exchange"},
    {FieldKind::PhoneLine, "phone line|phone line number|phone suffix|local phone number"},
    {FieldKind::BirthDate,
     "date of birth|birth date|birthdate|birthday|dob|=birth|d o b|=born|geburtsdatum|geburtstag|geb datum|=geb|geb am|=nee le|ne e le|fecha de nacimiento|fecha nacimiento|"
     "nacimiento|fnac|date de naissance|naissance|дата рождения|день рождения"},
    {FieldKind::BirthDay, "birth day|birthday day|dob day|dobday|day of birth|bday day|dob d|dobd|geburtstag tag|día de nacimiento"},
    {FieldKind::BirthMonth, "birth month|birthday month|dob month|dobmonth|month of birth|bday month|dob m|dobm|geburtsmonat|mes de nacimiento"},
    {FieldKind::BirthYear, "birth year|birthday year|dob year|dobyear|year of birth|bday year|dob y|doby|geburtsjahr|ano de nacimiento"},
    {FieldKind::Gender,
     "gender|sex|anrede|geschlecht|genero|sexo|civilite|sexe|=пол|=pol|salutation|salut|courtesy title|tratamiento|обращение"},
    {FieldKind::Company,
     "company|company name|organization|organisation|organization name|business name|employer|=firm|firmenname|unternehmen|betrieb|"
     "arbeitgeber|empresa|nombre de la empresa|razon social|societe|entreprise|raison sociale|nom de l entreprise|компания|организация|"
     "место работы|название компании|работодатель"},
    {FieldKind::JobTitle,
     "job title|jobtitle|=job|=position|occupation|profession|=role|beruf|stellung|berufsbezeichnung|puesto|profesion|ocupacion|fonction|"
     "metier|должность|профессия"},
    {FieldKind::Website,
     "website|web site|url|homepage|home page|=web|webseite|internetseite|pagina web|sitio web|site web|site internet|сайт|веб саит"},

    {FieldKind::SomeNumber, "number|no|numero|num|nummer|номер"},
    {FieldKind::SomeCode, "code|codigo|код|kod"},
    {FieldKind::SomeDay, "day|dd|jour|jj|день|дд"},
    {FieldKind::SomeMonth, "month|months|mm|mo|monat|mois|месяц|мм"},
    {FieldKind::SomeYear, "year|years|yy|yyyy|yr|jahr|jjjj|aa|aaaa|annee|год|гг|гггг"},
    {FieldKind::SomeDate, "date|datum|fecha|дата|dd mm yyyy|mm dd yyyy|tt mm jjjj|jj mm aaaa|dd mm aaaa|дд мм гггг|yyyy mm dd"},

    // Words of further languages that many shops of the neighbourhood write.
    {FieldKind::FirstName, "voornaam|imie|prenome"},
    {FieldKind::LastName, "achternaam|cognome|nazwisko|sobrenome"},
    {FieldKind::SomeName, "nome|naam"},
    {FieldKind::FullName, "nome e cognome|nome completo|volledige naam|imie i nazwisko"},
    {FieldKind::AddressLine1, "straat|straatnaam|straat en huisnummer|indirizzo|endereco|morada|logradouro|=rua|ulica i numer"},
    {FieldKind::HouseNumber, "huisnummer|numero civico|numer domu"},
    {FieldKind::PostalCode, "codice postale|kod pocztowy|codigo de enderecamento"},
    {FieldKind::City, "woonplaats|citta|miejscowosc|miasto|cidade"},
    {FieldKind::Country, "nazione|paese"},
    {FieldKind::Phone, "telefoon|telefoonnummer|telemovel|cellulare|numero di telefono|numer telefonu|telefone"},
    {FieldKind::Email, "e mailadres|emailadres|posta elettronica|adres e mail|adres email"},
    {FieldKind::BirthDate, "geboortedatum|data di nascita|data de nascimento|data urodzenia"},
    {FieldKind::Gender, "geslacht|aanhef|sesso|płec|sexo"},
    {FieldKind::UserName, "gebruikersnaam|nome utente|=utente|nazwa użytkownika|nome de usuario"},
    {FieldKind::Password, "wachtwoord|hasło|senha"},
    {FieldKind::CardNumber, "kaartnummer|numero della carta|numero carta|numero do cartao|numer karty"},
    {FieldKind::CardHolder,
     "naam op de kaart|naam op kaart|nome titolare carta|nome titolare|titolare carta|nombre de tarjeta|nombre de la tarjeta|intestatario|intestatario della carta|titolare della carta|nome sulla carta|nome no cartao|nome impresso no cartao|"
     "imie i nazwisko na karcie"},
    {FieldKind::CardExpiry, "vervaldatum|data di scadenza|validade|data de validade|data waznosci"},
    {FieldKind::CardCode, "beveiligingscode|codice di sicurezza|codigo de seguranca|kod bezpieczenstwa"},
    // Words that are an address's in one country and beside it in another.
    {FieldKind::PerhapsCity,
     "distrito|localidade|suburb|locality|village|municipality|post town|localidad|municipio|commune|localite|населенныи пункт|bairro municipio"},
    {FieldKind::PerhapsState, "region|region id|county|prefecture|departamento|departement|=zone|uezd"},
    {FieldKind::PerhapsLine2, "=escalera|=puerta|=portal|=piso|=корпус|batiment"},
    {FieldKind::PerhapsPostalCode, "postnummer|postnr"},

    {FieldKind::Never,
     "recovery code|backup code|activation code|pairing code|access code sent|code we|passcode we|pin we|we emailed|we sent|we texted|sent you|"
     "emailed to you|texted to you|code sent|from your app|from the app|sent by sms|sent to your|einmalkennwort|aktivierungscode|"
     "freischaltcode|codigo sms|codigo recibido|codigo enviado|clave sms|codigo de un solo uso|code recu|code envoye|code a usage unique|"
     "код активации|код авторизации|type the characters|type the text|type the word|letters in the image|введите символы|символы с|"
     "gift voucher|gift card pin|store credit|cupon de descuento|codigo cupon|bon d achat|cheque cadeau|geschenkkarte|geschenkgutschein|"
     "wertgutschein|vorteilscode|werbecode|код купона|подарочный сертификат|код скидки|kod rabatowy|=rabat|codice sconto|codice promozionale|"
     "buono sconto|cupom|codigo de desconto|kortingscode|rabattkod|rabatkode|slevovy kod|slevovy kupon|indirim kodu|kupon|"
     "code parrainage|code de parrainage|codigo de invitacion|codigo amigo|empfehlungscode|einladungscode|реферальный код|код приглашения"},
    {FieldKind::Other,
     "=po box|=p o box|=pobox|=postfach|=packstation|=apartado|=apartado postal|=apartado de correos|=boite postale|packstation|"
     "company id|company number|company no|company registration number|company code|=ico|=dic|=nip|=regon|=cnpj|=oib|partita iva|p iva|=rfc|=curp|"
     "=rut|gst|gst number|gstin|=abn|=ein|=fein|tin|personnummer|=cpr|=pesel|rodne cislo|tc kimlik|tc kimlik no|=bsn|aadhaar|pan number|dni cif|"
     "employee id|employee number|student id|student number|customer id|client number|policy number|claim number|contract number|tracking number|"
     "numero de poliza|numero de contrato|numero de contrat|numero de pedido|numero de commande|номер договора|номер полиса|номер заказа|"
     "kontoinhaber|account holder|account holder name|titular de la cuenta|titulaire du compte|владелец счета|employer address|employer phone|employer city|employer email|employer name and address|website name|bank name|name of bank|bank address|"
     "linked in|linkedin|facebook|twitter|instagram|github|youtube|tiktok|xing|telegram|skype|discord|snapchat|pinterest|"
     "city of birth|country of birth|state of birth|town of birth|birth city|birth country|birth state|birth town|geburtsland|geburtsstadt|"
     "ciudad de nacimiento|pais de nacimiento|provincia de nacimiento|ville de naissance|pays de naissance|commune de naissance|"
     "departement de naissance|nom de naissance|страна рождения|город рождения|luogo di nascita|comune di nascita|citta di nascita|"
     "дополнительный телефон|другой телефон|запасной телефон|второй телефон|telefono alternativo|otro telefono|telefono adicional|"
     "autre telephone|telephone secondaire|autre numero|weitere telefonnummer|zweite telefonnummer|alternative telefonnummer|notfallkontakt|"
     "notfallnummer|contacto de emergencia|contact d urgence|экстренный контакт|"
     "wi fi password|wifi password|wlan passwort|wlan schlussel|network key|network password|wi fi network|clave wifi|cle wifi|пароль wi fi|ssid|=floor|=building|=etage|=stockwerk|building name|tipo de via|type de voie|"
     "entrance|intercom|gate code|door code|digicode|interphone|landmark|neighborhood|neighbourhood|=barrio|=bairro|=colonia|=quartier|"
     "подъезд|этаж|домофон|код домофона|район|entre calles|entre que calles|stadtteil|ortsteil|"
     "carte de fidelite|numero de fidelite|n de carte de fidelite|numero de carte de fidelite|tarjeta de fidelidad|kundenkarte|kundenkartennummer|"
     "carta fedelta|=bahncard|бонусная карта|номер бонусной карты|карта лояльности|id card|id card number|identity card|ausweisnummer|personalausweis|"
     "house name|name suffix|=suffix|name prefix|middle name of father|father s name|mother s name|girokonto|"
     "versicherungsnummer|steuer id|steueridentifikationsnummer|krankenkasse|numero de securite sociale|seguridad social|снилс"},
    {FieldKind::HouseNumber,
     "=altura|house name or number|house name number|house name no|house number or name|house number name|house name and number|building number|"
     "numer budynku|nr domu|nr budynku|husnummer|husnr|cislo popisne|kapi no|bina no|n civico|numero porta"},
    {FieldKind::NewPassword,
     "add a password|set a password|set password|set your password|enter a new password|pick a password|create your password|your new password|"
     "passwort festlegen|passwort vergeben|passwort erstellen|wunschpasswort|crear contrasena|elige una contrasena|crea tu contrasena|"
     "creer un mot de passe|creez un mot de passe|choisir un mot de passe|создайте пароль|задайте пароль|nieuw wachtwoord|nuova password|"
     "nova senha|nowe haslo|nytt losenord"},
    {FieldKind::AddressLine1, "nombre de la via|nombre de la calle|nom de la rue|nom de la voie|name der strasse|name of street"},
    {FieldKind::FullName, "имя получателя|имя и отчество|recipient s name|recipient full name|applicant name"},
    {FieldKind::PostalCode, "eircode|address by postcode|postcode lookup|by postcode|postcode zip"},
    {FieldKind::AddressLine2, "nr lokalu|nr mieszkania|numer mieszkania|numer lokalu|flat|flat number|flat no|piso y puerta|piso puerta|piso puerta escalera|apt no|apartment number|unit no|suite number|door number|complemento|indirizzo 2|indirizzo riga 2|direccion 2|adresse 2|=офис|numero interior|depto"},

    // Languages of neighbours further away.
    {FieldKind::FirstName, "fornamn|fornavn|etunimi|jmeno|krestni jmeno|keresztnev|prenume|ім я"},
    {FieldKind::LastName, "efternamn|etternavn|efternavn|sukunimi|prijmeni|priezvisko|vezeteknev|nume de familie|soyad|soyadi|soyisim|прізвище|prezime"},
    {FieldKind::FullName, "jmeno a prijmeni|ad soyad|fulde navn|fullt navn|fullstandigt namn|meno a priezvisko|ime i prezime|teljes nev|прізвище та ім я"},
    {FieldKind::SomeName, "namn|navn|nimi"},
    {FieldKind::AddressLine1,
     "gatuadress|gateadresse|vejnavn|adress|katuosoite|osoite|ulice|ulice a cislo|ulice a cislo popisne|ulica a cislo|cadde|sokak|utca|strada|вулиця|"
     "acik adres|lahiosoite"},
    {FieldKind::City, "poststed|kaupunki|postitoimipaikka|sehir|varos|telepules|localitate|місто"},
    {FieldKind::PostalCode, "postinumero|psc|posta kodu|iranyitoszam|cod postal|поштовий індекс|postanski broj"},
    {FieldKind::Country, "krajina|ulke|orszag|країна|drzava"},
    {FieldKind::Phone, "telefonnummer|mobilnummer|mobilnr|puhelin|puhelinnumero|matkapuhelin|telefonni cislo|telefonszam|cep telefonu|telefon no|номер телефону"},
    {FieldKind::Email, "e post|epost|e postadress|e postadresse|sahkoposti|e posta|eposta|e posta adresi|електронна пошта|e mailova adresa"},
    {FieldKind::Password, "losenord|passord|adgangskode|salasana|heslo|sifre|jelszo"},
    {FieldKind::RepeatedPassword, "bekrafta losenord|gjenta passord|gentag adgangskode|heslo znovu|potvrzeni hesla|sifre tekrar|powtorz haslo|ripeti password|conferma password|confirme a senha|herhaal wachtwoord"},
    {FieldKind::UserName, "anvandarnamn|brukernavn|brugernavn|kayttajatunnus|uzivatelske jmeno|kullanici adi|felhasznalonev|codice cliente|codice utente|kundnummer"},
    {FieldKind::Gender, "kjonn|sukupuoli|pohlavi|cinsiyet|стать"},
    {FieldKind::Company, "foretag|foretagsnamn|firmanavn|yritys|spolecnost|nazev firmy|sirket|azienda|ragione sociale|bedrijf|bedrijfsnaam|nazwa firmy|nome da empresa"},
    {FieldKind::BirthDate, "fodelsedatum|fodselsdato|fodselsdag|syntymaaika|datum narozeni|dogum tarihi|szuletesi datum|дата народження"},
    {FieldKind::CardNumber, "kortnummer|kartnummer|cislo karty|kart numarasi|kartyaszam|kortin numero"},
    {FieldKind::CardCode, "sakerhetskod|sikkerhetskode|bezpecnostni kod|guvenlik kodu"},
    {FieldKind::CardExpiry, "utgangsdatum|utlopsdato|udlobsdato|son kullanma tarihi|giltig till"},
    {FieldKind::CardHolder, "kortinnehavare|kortinnehavarens namn|kortholder|kortholders navn|drzitel karty|kart uzerindeki isim|kart sahibi"},

    // Words that mean something else in other languages.
    {FieldKind::Other, "apelido", "pt-br"},
    {FieldKind::State, "=kraj", "cs sk"},
    {FieldKind::SomeName, "nombre", "es gl"},
    {FieldKind::SomeNumber, "nombre", "fr"},
    {FieldKind::FirstName, "=ad|=isim", "tr az"},
    {FieldKind::FirstName, "=ime", "hr sr bs sl bg mk"},
    {FieldKind::FirstName, "=meno", "sk"},
    {FieldKind::LastName, "apelido|apelidos", "pt gl"},
    {FieldKind::City, "ort", "de sv"},
    {FieldKind::City, "stad", "nl sv"},
    {FieldKind::City, "=mesto", "cs sk sl sr"},
    {FieldKind::City, "=obec", "cs sk"},
    {FieldKind::City, "=grad", "hr sr bs bg"},
    {FieldKind::City, "=oras", "ro"},
    {FieldKind::City, "=sted", "da no nb nn"},
    {FieldKind::City, "=plaats", "nl"},
    {FieldKind::City, "comune", "it"},
    {FieldKind::Country, "land", "de nl sv da no nb nn"},
    {FieldKind::Country, "=staat", "de"},
    {FieldKind::Country, "=maa", "fi"},
    {FieldKind::Country, "=zeme", "cs"},
    {FieldKind::Country, "=tara", "ro"},
    {FieldKind::Country, "=kraj", "pl"},
    {FieldKind::Gender, "genre", "fr"},
    {FieldKind::Gender, "=kon", "sv"},
    {FieldKind::Phone, "handy", "de"},
    {FieldKind::Phone, "portable", "fr"},
    {FieldKind::JobTitle, "=cargo", "es pt"},
    {FieldKind::JobTitle, "=poste", "fr"},
    {FieldKind::Company, "firma", "de pl cs sk da sv no nb nn nl tr hr sr sl ru en"},
    {FieldKind::Password, "parola", "ro tr bg"},
    {FieldKind::SomeDay, "tag|tt", "de"},
    {FieldKind::SomeDay, "dia", "es pt gl ca"},
    {FieldKind::SomeMonth, "mes", "es pt gl ca"},
    {FieldKind::SomeYear, "ano", "es pt gl"},
    {FieldKind::PostalCode, "=cap", "it"},
    {FieldKind::PostalCode, "=cep", "pt"},
    {FieldKind::PostalCode, "=index", "ru uk be kk bg"},
    {FieldKind::AddressLine1, "=via", "it"},
    {FieldKind::AddressLine1, "=gata", "sv"},
    {FieldKind::CardExpiry, "scadenza", "it"},
    {FieldKind::CardExpiry, "platnost", "cs sk"},
    };
    return rows;
}

const QVector<WordRow<CaptionKind>> &captionWords()
{
    static const QVector<WordRow<CaptionKind>> rows = {
    {CaptionKind::ChangePassword,
     "change password|change my password|change your password|reset password|reset your password|new password|choose a new password|"
     "set password|set a password|set new password|update password|passwort andern|passwort zurucksetzen|kennwort andern|neues passwort|"
     "cambiar contrasena|restablecer contrasena|nueva contrasena|modifier le mot de passe|changer le mot de passe|"
     "reinitialiser le mot de passe|nouveau mot de passe|сменить пароль|изменить пароль|новый пароль|смена пароля"},
    {CaptionKind::SignUp,
     "sign up|signup|register|registration|create account|create an account|create your account|create new account|"
     "create new customer account|new account|new customer|new user|join|join now|join free|join today|get started|get started free|"
     "start trial|start your trial|enroll|registrieren|registrierung|konto erstellen|neues konto|neukunde|neuer kunde|konto anlegen|"
     "crear cuenta|registrarse|registrate|registrarme|registrati|registreren|zarejestruj|criar conta|crea account|account aanmaken|registro|nueva cuenta|s inscrire|inscription|creer un compte|nouveau client|"
     "nouveau compte|enregistrer|регистрация|зарегистрироваться|создать аккаунт|создать учетную запись"},
    {CaptionKind::Newsletter,
     "newsletter|subscribe|stay in the loop|stay updated|mailing list|newsletter abonnieren|abonnieren|suscribete|suscribirse|suscribirme|"
     "boletin|s abonner|infolettre|подписаться|рассылка|подписка"},
    {CaptionKind::SignIn,
     "sign in|signin|log in|login|log on|logon|sign on|access your account|returning customer|member login|welcome back|account access|"
     "accedi|inloggen|zaloguj|anmelden|anmeldung|einloggen|iniciar sesion|acceder|acceso|entrar|se connecter|connexion|identification|s identifier|войти|вход|"
     "авторизация"},
    {CaptionKind::GoOn, "=next|=continue|=weiter|=fortfahren|=siguiente|=continuar|=suivant|=continuer|=далее|=продолжить"},
    {CaptionKind::Card,
     "payment|pay|card|credit card|credit card information|payment details|payment information|payment method|add card|zahlung|bezahlen|"
     "kreditkarte|karte|pago|tarjeta|paiement|carte|payer|оплата|карта|картой|оплатить|secure checkout"},
    {CaptionKind::Birth,
     "birth|date of birth|birthday|dob|geburtsdatum|geburtstag|nacimiento|naissance|рождения|birth date|birthdate|born"},
    {CaptionKind::Code,
     "verification|two step verification|two factor|2 step verification|verification code|authenticator|authentication code|"
     "check your email|bestatigung|verifizierung|verificacion|подтверждение|подтвердите"},
    {CaptionKind::SignUp,
     "finish setting up|set up your account|setting up your account|open an account|open account|apply now|become a member|register now|"
     "create profile|create your profile|create a new mailbox|mitglied werden|abrir cuenta|hazte socio|ouvrir un compte|devenir membre|"
     "открыть счет|стать клиентом|skapa konto|opprett konto|opret konto|vytvorit ucet|uye ol|registrace"},
    {CaptionKind::SignIn, "logga in|logg inn|log ind|kirjaudu|prihlasit|prihlaseni|giris yap|giris|bejelentkezes|entra|увіити"},
    {CaptionKind::Code,
     "enter security code|enter the code|enter code|enter your code|confirm your identity|verify your identity|verify it s you|one time code|"
     "one time passcode|one time password|codigo de verificacion|code de verification|код подтверждения|введите код|code eingeben|код из смс"},
    {CaptionKind::Newsletter,
     "sign up for our newsletter|join our mailing list|join our newsletter|get our best|email updates|get updates|sign me up|keep me posted"},
    };
    return rows;
}
// clang-format on
