import { buildSync } from 'esbuild';

/** Pages with a sign-in as React makes them: its button alone sends, and only once the page has noticed both fields. */
export function reactPages(styles = {}) {
  const field = (name, type) => `h('input', { name: '${name}', type: '${type}', value: login.${name}, style: ${JSON.stringify(styles[name] ?? {})},
    onChange: ({ target }) => setLogin({ ...login, ${name}: target.value }) })`;
  const contents = `
    import { createElement as h, useState } from 'react';
    import { createRoot } from 'react-dom/client';
    function App() {
      const [login, setLogin] = useState({ user: '', pw: '' });
      const post = () => fetch('/done', { method: 'POST', body: new URLSearchParams(login) });
      return h('form', { onSubmit: (event) => event.preventDefault() }, ${field('user', 'text')}, ${field('pw', 'password')},
        h('button', { onClick: post, disabled: !(login.user && login.pw), style: ${JSON.stringify(styles.button ?? {})} }, 'Log in'));
    }
    setTimeout(() => createRoot(document.getElementById('app')).render(h(App)), 300);`;
  const define = { 'process.env.NODE_ENV': '"production"' };
  const stdin = { contents, resolveDir: new URL('.', import.meta.url).pathname };
  return {
    '/react': '<div id=app></div><script src=/react.js></script>',
    '/react.js': buildSync({ stdin, bundle: true, write: false, define }).outputFiles[0].text,
  };
}
