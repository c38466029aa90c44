import assert from 'node:assert/strict';
import { test } from 'node:test';
import { bundle, openPage } from './page.mjs';

const script = bundle('kinds.js', 'kinds');

const LOGIN = '<form>$<input type=password><button>Go</button></form>';
const STEP = '<form>$<button>Weiter</button></form>';
const PLAIN = '<form>$<button>Send</button></form>';
const FIELDS = [
  ['login', PLAIN, '<input type=password>'],
  ['login', PLAIN, '<input type=password autocomplete="new-password">'],
  ['login', PLAIN, '<input autocomplete="section-a username webauthn">'],
  ['login', LOGIN, '<input type=email>'],
  ['login', LOGIN.replace('</', '<input name=elements></'), '<input type=email>'],
  ['login', LOGIN, '<input autocomplete=email>'],
  ['login', STEP, '<label>Benutzername <input></label>'],
  ['login', STEP, '<input id=loginId type=tel>'],
  ['creditcard', PLAIN, '<input autocomplete="billing cc-number">'],
  ['creditcard', PLAIN, '<input name=cardNumber>'],
  ['creditcard', PLAIN, '<label>Срок действия <input></label>'],
  ['creditcard', PLAIN, '<input placeholder="MM / YY">'],
  ['creditcard', PLAIN, '<input name=cc_exp>'],
  ['creditcard', PLAIN, '<input name=cvv type=password maxlength=4>'],
  ['identity', PLAIN, '<input autocomplete="shipping postal-code">'],
  ['identity', PLAIN, '<input autocomplete=email>'],
  ['identity', PLAIN, '<label>Vorname <input></label>'],
  ['identity', PLAIN, '<input name=lastName>'],
  ['identity', PLAIN, '<input placeholder="Código postal">'],
  [undefined, LOGIN, '<input type=search name=email>'],
  [undefined, LOGIN, '<input autocomplete=one-time-code name=user>'],
  [undefined, LOGIN, '<input name=captcha_user>'],
  [undefined, LOGIN, '<div role=search><input name=user></div>'],
  [undefined, LOGIN, '<input name=email readonly>'],
  [undefined, LOGIN, '<input type=checkbox name=login>'],
  [undefined, PLAIN, '<input type=email name=newsletter_email>'],
  [undefined, PLAIN, '<input type=email>'],
  [undefined, PLAIN, '<input name=promo_card_number>'],
  [undefined, PLAIN, '<input name=comment>'],
  [undefined, PLAIN, '<input placeholder="DD/MM/YYYY">'],
  [undefined, PLAIN, '<input type=password name=sms_code>'],
  [undefined, PLAIN, '<label>Код подтверждения <input type=password maxlength=6></label>'],
  ['login', PLAIN, '<input type=password name=verifyPassword>'],
  ['login', PLAIN, '<label>Code secret <input type=password maxlength=6></label>'],
];

test('a field has the icon of what it is for', () => {
  for (const [kind, around, field] of FIELDS) {
    const { document, eval: run } = openPage(around.replace('$', field));
    run(script);
    assert.equal(run('kinds').kindOf(document.querySelector('input')), kind, around.replace('$', field));
  }
});
