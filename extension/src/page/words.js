// Words of buttons, links and fields in the languages of the pages that people log in to.
export const SIGN_IN = [
  'sign in', 'signin', 'log in', 'login', 'log on', 'logon',
  'anmelden', 'anmeldung', 'einloggen', 'inloggen', 'aanmelden', 'logga in', 'logg inn', 'log ind', 'kirjaudu',
  'войти', 'вход', 'увійти', 'вхід', 'connexion', 'se connecter', "s'identifier", 'identifiez vous',
  'iniciar sesión', 'inicia sesión', 'iniciar sesion', 'acceder', 'ingresar', 'accedi', 'entrar', 'iniciar sessão',
  'zaloguj', 'zaloguj się', 'logowanie', 'přihlásit', 'přihlásit se', 'prihlásiť sa', 'bejelentkezés', 'giriş yap',
  'oturum aç', 'ログイン', 'サインイン', '登录', '登入', '로그인',
];

// Often lead to the login page of whoever is not logged in.
export const ACCOUNT = ['account', 'my account', 'mein konto', 'mon compte', 'mi cuenta', 'личный кабинет'];

export const SIGN_OUT = [
  'sign out', 'signout', 'log out', 'logout', 'log off', 'logoff', 'abmelden', 'ausloggen', 'uitloggen', 'logga ut',
  'выйти', 'выход', 'вийти', 'déconnexion', 'se déconnecter', 'cerrar sesión', 'salir', 'esci', 'sair', 'wyloguj',
  'odhlásit', 'ログアウト', '退出', '로그아웃',
];

export const SIGN_UP = [
  'sign up', 'signup', 'register', 'registration', 'create account', 'create an account', 'create your account', 'join', 'join now',
  'registrieren', 'registrierung', 'konto erstellen', 'регистрация', 'зарегистрироваться', 'создать аккаунт',
  "s'inscrire", 'inscription', 'créer un compte', 'registrarse', 'regístrate', 'crear cuenta', 'registrati',
  'cadastre se', 'criar conta', 'zarejestruj', 'zarejestruj się', 'rejestracja', 'registreren',
];

// On the button of a form that takes a new password for the old one.
export const CHANGE = [
  'save', 'save changes', 'update', 'update password', 'change', 'change password', 'set', 'set password', 'reset', 'reset password',
  'apply', 'speichern', 'ändern', 'passwort ändern', 'aktualisieren', 'übernehmen', 'zurücksetzen', 'enregistrer', 'modifier', 'changer',
  'mettre à jour', 'réinitialiser', 'guardar', 'cambiar', 'actualizar', 'restablecer', 'сохранить', 'изменить', 'сменить', 'обновить',
  'сбросить', 'зберегти', 'змінити', 'salva', 'modifica', 'cambia', 'aggiorna', 'salvar', 'alterar', 'atualizar', 'redefinir', 'zapisz',
  'zmień', 'zaktualizuj', 'opslaan', 'wijzigen', 'uložit', 'změnit', 'spara', 'ändra', 'kaydet', 'değiştir', '保存', '変更', '更新', '更改',
  '저장', '변경',
];

const PROVIDERS = ['google', 'facebook', 'apple', 'microsoft', 'github', 'twitter', 'linkedin', 'amazon'];

const SIDE_WAYS = [
  'passkey', 'qr', 'sso', 'forgot', 'forgotten', 'reset', 'vergessen', 'oublié', 'забыли', 'olvidaste', 'olvidado',
  'help', 'hilfe', 'show', 'hide', 'anzeigen', 'показать', 'cancel', 'abbrechen', 'отмена', 'back', 'zurück', 'назад',
];

// The whole caption of a button that closes a window.
export const CLOSE = [
  'close', 'close dialog', 'close modal', 'dismiss', 'schließen', 'fermer', 'cerrar', 'chiudi', 'fechar', 'закрыть', 'закрити',
  'zamknij', 'sluiten', 'zavřít', 'stäng', 'kapat', '閉じる', '关闭', '닫기',
];

export const GO_ON = [
  'next', 'continue', 'submit', 'ok', 'go', 'confirm', 'weiter', 'fortfahren', 'absenden', 'bestätigen',
  'далее', 'продолжить', 'отправить', 'подтвердить', 'suivant', 'continuer', 'valider', 'siguiente', 'continuar',
  'avanti', 'continua', 'avançar', 'dalej', 'volgende', 'další', '次へ', '下一步', '다음',
];

export const USER_NAME = [
  'login', 'user', 'uname', 'email', 'e-mail', 'mail', 'phone', 'account', 'benutzer', 'konto', 'kundennummer',
  'логин', 'почта', 'телефон', 'пользовател', 'identifiant', 'utilisateur', 'usuario', 'correo', 'utente', 'usuário',
];

function fold(text) {
  const plain = text.normalize('NFKC').toLowerCase().replaceAll('\u2019', "'");
  return ` ${plain.replace(/[^\p{L}\p{N}']+/gu, ' ').trim()} `;
}

/** Where the first of the phrases stands in the text as whole words; -1 when none does. */
export function findPhrase(text, phrases) {
  const folded = fold(text);
  const places = phrases.map((phrase) => folded.indexOf(fold(phrase))).filter((place) => place >= 0);
  return places.length > 0 ? Math.min(...places) : -1;
}

export function isPhrase(text, phrases) {
  const folded = fold(text);
  return phrases.some((phrase) => fold(phrase) === folded);
}

/** What a page's title calls its site, without what the page is for; empty when it says only that. */
export function siteNameIn(title) {
  const parts = title.split(/\s[|·•–—:-]\s/).map((part) => part.trim()).filter(Boolean);
  const words = [...SIGN_IN, ...SIGN_UP, ...CHANGE];
  return parts.find((part) => findPhrase(part, words) < 0) ?? parts.find((part) => !isPhrase(part, words)) ?? '';
}

/** Whether a button leads away from logging in here: out, to a new account, to somebody else's, to help. */
export function leadsElsewhere(text) {
  const others = PROVIDERS.filter((name) => !location.hostname.includes(name));
  return findPhrase(text, [...SIGN_OUT, ...SIGN_UP, ...SIDE_WAYS, ...others]) >= 0;
}
