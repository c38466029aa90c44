import { after, before, describe } from 'node:test';
import { BROWSERS, FIREFOX_ORIGIN, buildExtension, launchBrowser } from './browser.mjs';
import { startDesktop, startDesktopProgram } from './desktop.mjs';
import { startSite } from './site.mjs';
import { makeUser } from './user.mjs';

/**
 * What a file of stories needs, started once: {desktop, program, user, site}, there from the first test on. The program
 * stands at its first start, and Firefox's extension is approved unless approved is false.
 * pages, secure: as in startSite; hosts: the names that lead to them.
 */
export function makeStage({ pages, hosts, secure = false, approved = true }) {
  const stage = { browser: undefined };

  before(async () => {
    buildExtension();
    stage.site = await startSite(pages, { secure });
    stage.desktop = await startDesktop();
    stage.program = await startDesktopProgram(stage.desktop);
    stage.user = makeUser(stage.desktop, stage.program);
    if (approved) await stage.program.approve([FIREFOX_ORIGIN]);
    stage.program.start();
  });

  after(async () => {
    await stage.browser?.close();
    await stage.program?.stop('SIGKILL');
    await stage.program?.remove();
    stage.desktop?.stop();
    stage.site?.close();
  });

  /** The address of a path at one of the hosts. */
  stage.at = (path, host = hosts[0]) => `http${secure ? 's' : ''}://${host}:${stage.site.port}${path}`;

  /**
   * Tells the same stories in each browser, one after the other, as the program serves one at a time. Within,
   * stage.browser is the running one, connected to the program unless connect is false. One that is not visible is started
   * while the stories are told in the one before. options: as in launchBrowser.
   */
  stage.inEachBrowser = (tell, { connect = true, visible = false, ...options } = {}) => {
    const screen = () => (visible ? { headless: false, env: stage.desktop.env } : {});
    const launch = (kind) => launchBrowser(kind, { hosts, ...screen(), ...options, extension: false });
    const coming = new Map();
    after(() => Promise.all([...coming.values()].map(async (each) => (await each).close())));

    for (const [index, kind] of BROWSERS.entries()) {
      describe(kind, () => {
        before(async () => {
          stage.browser = await (coming.get(kind) ?? launch(kind));
          coming.delete(kind);
          await stage.browser.install();
          if (connect) await stage.browser.connected();
          const next = BROWSERS[index + 1];
          if (next && !visible) coming.set(next, launch(next));
        });
        after(async () => {
          await stage.browser?.close();
          stage.browser = undefined;
        });
        tell(kind);
      });
    }
  };

  return stage;
}
