'use strict';

const fs = require('fs');
const path = require('path');

const hook = path.join(__dirname, 'src/wrappers/web/hook');
const extensions = path.join(__dirname, 'extensions/web');

// The fragments are one text in the page: what one of them declares at its top level, or assigns to a member of the
// window, all others may use.
function declaredIn(folder) {
  const names = {};
  const files = fs.existsSync(folder) ? fs.readdirSync(folder, { recursive: true }) : [];
  for (const file of files.filter((name) => /\.js(\.in)?$/.test(name))) {
    const text = fs.readFileSync(path.join(folder, file), 'utf8');
    for (const match of text.matchAll(/^(?:function|var) +([\w$]+)|\b(?:window\.)?(?:window|top)\.(__corvex\w*) *=[^=]/gm)) {
      names[match[1] || match[2]] = 'writable';
    }
  }
  return names;
}

const readonly = (names) => Object.fromEntries(names.split(/\s+/).map((name) => [name, 'readonly']));

const page = readonly(`window top document location navigator screen event alert confirm prompt open
  setTimeout setInterval clearTimeout clearInterval escape unescape
  Node Element HTMLElement HTMLFormElement ShadowRoot Document NodeFilter Event CustomEvent MouseEvent KeyboardEvent
  UIEvent TouchEvent Touch InputEvent FocusEvent PointerEvent DataTransfer XMLHttpRequest ActiveXObject
  getComputedStyle sessionStorage Map WeakMap Set Symbol console Components`);

// Placed in the page beside the script, and only read by it.
const flags = readonly(`__corvex__filter__non__element__nodes __corvex__eventLoggerBridge
  __corvex__qwebkitEventLoggerBridge`);

const rules = {
  'no-undef': ['error', { typeof: false }],
  'no-unused-vars': ['error', { vars: 'local', args: 'none', caughtErrors: 'none' }],
  'eqeqeq': ['error', 'always', { null: 'ignore' }],
  'no-dupe-keys': 'error',
  'no-dupe-args': 'error',
  'no-dupe-else-if': 'error',
  'no-duplicate-case': 'error',
  'no-func-assign': 'error',
  'no-inner-declarations': ['error', 'functions'],
  'no-cond-assign': ['error', 'except-parens'],
  'no-self-assign': 'error',
  'no-self-compare': 'error',
  'no-unreachable': 'error',
  'no-unsafe-negation': 'error',
  'no-fallthrough': 'error',
  'no-sparse-arrays': 'error',
  'no-shadow-restricted-names': 'error',
  'no-invalid-regexp': 'error',
  'use-isnan': 'error',
  'valid-typeof': 'error',
  'no-empty': ['error', { allowEmptyCatch: true }],
  'max-lines': ['error', 800],
  'no-loop-func': 'error',
  'no-unused-expressions': 'error'
};

// Text that is run as code runs in the page of whoever sees to it.
const noEval = { 'no-eval': 'error', 'no-implied-eval': 'error', 'no-new-func': 'error' };

module.exports = [
  { linterOptions: { reportUnusedDisableDirectives: 'error' } },
  { ignores: ['node_modules/**', 'build/**', 'build-*/**'] },
  {
    files: ['src/wrappers/web/hook/**/*.js', 'extensions/web/*.js', 'src/webhook/**/*.js'],
    languageOptions: {
      ecmaVersion: 5,
      sourceType: 'script',
      globals: { ...page, ...flags, ...declaredIn(hook), ...declaredIn(extensions), __corvex: 'readonly' }
    },
    rules: { ...rules, ...noEval }
  },
  {
    files: ['tests/wrappers/web/hook/*.js'],
    languageOptions: {
      ecmaVersion: 2022,
      sourceType: 'script',
      globals: {
        ...page, ...readonly('XPathResult frames innerWidth innerHeight screenX screenY outerWidth outerHeight devicePixelRatio'),
        ...declaredIn(hook), ...declaredIn(extensions), __corvex: 'readonly', test: 'readonly'
      }
    },
    rules
  },
  {
    files: ['eslint.config.js', 'cmake/**/*.js'],
    languageOptions: {
      ecmaVersion: 2022,
      sourceType: 'commonjs',
      globals: readonly('require module process __dirname')
    },
    rules
  }
];
