// Makes the pictures of docs/images anew, from the program as ./run builds it: node tests/e2e/pictures.mjs

import { fileURLToPath } from 'node:url';
import { startDesktop, startDesktopProgram } from './desktop.mjs';
import { makeUser } from './user.mjs';

const LOGINS = [
  ['Alpine Club', 'ana.martin@example.org'], ['Bank of the North', 'ana-m-4471'], ['Design Tools', 'ana@studio.example'],
  ['Every Books', 'ana.martin'], ['Ferry Tickets', 'ana.martin@example.org'], ['Git Forge', 'anam'],
  ['Harbour Health', 'AM-204118'], ['Island Coffee', 'ana.martin@example.org'], ['Cloudmail', 'ana.martin'],
];
const folder = fileURLToPath(new URL('../../docs/images', import.meta.url));
const address = (title) => `https://www.${title.toLowerCase().replaceAll(' ', '')}.example/login`;

const desktop = await startDesktop();
const program = await startDesktopProgram(desktop, { binary: 'build/release/src/glaceron' });
const user = makeUser(desktop, program);
try {
  program.start();
  await user.createSafe('Personal', 'a Demo password 1!', 'the usual, with the year');
  for (const [title, userName] of LOGINS) {
    await user.addLogin({ title, userName, password: 'q7V<m2X,8Rz!Kd', url: address(title) });
  }
  await desktop.press('ctrl+shift+c');
  await desktop.picture(`${folder}/main.png`, await user.openWindow());
  await user.lock();
  await desktop.picture(`${folder}/lock.png`, await user.lockedWindow());
} finally {
  await program.stop('SIGKILL');
  await program.remove();
  desktop.stop();
}
