/** Lets everything that waits for no timer run to its end. */
export const flush = () => new Promise((resolve) => setImmediate(resolve));

/** Lets several such steps in a row, each begun by the one before, run to their end. */
export async function idle() {
  for (let turn = 0; turn < 20; turn += 1) await flush();
}

/** Timers that pass only when told to. */
export function createClock() {
  let now = 1000000;
  let lastId = 0;
  const planned = new Map();
  const plan = (every) => (work, delay = 0) => {
    planned.set((lastId += 1), { work, at: now + delay, every: every ? delay : undefined });
    return lastId;
  };
  const cancel = (id) => planned.delete(id);

  async function advance(milliseconds) {
    const end = now + milliseconds;
    for (;;) {
      const due = [...planned].filter(([, timer]) => timer.at <= end).sort(([, a], [, b]) => a.at - b.at)[0];
      if (!due) break;
      const [id, timer] = due;
      now = timer.at;
      if (timer.every) timer.at += timer.every;
      else planned.delete(id);
      timer.work();
      await flush();
    }
    now = end;
    await flush();
  }

  const timers = { setTimeout: plan(false), setInterval: plan(true), clearTimeout: cancel, clearInterval: cancel };
  return { timers, advance, now: () => now };
}
