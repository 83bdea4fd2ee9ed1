'use strict';

const path = require('path');

const { plugin, readRooms } = require('./cmake/hookneeds.js');

const hook = path.join(__dirname, 'src/wrappers/web/hook');
const extensions = path.join(__dirname, 'extensions/web');

const rooms = readRooms(hook);

// The fragments are one text in the page: what one of them declares all others may use.
const shared = Object.fromEntries(rooms.concat(readRooms(extensions)).flatMap((room) => room.names).filter(
  (name) => !name.includes('.')).map((name) => [name, 'writable']));

const readonly = (names) => Object.fromEntries(names.split(/\s+/).map((name) => [name, 'readonly']));

const page = readonly(`window top document location navigator screen event alert confirm prompt open
  navigation performance history setTimeout setInterval clearTimeout clearInterval escape unescape
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
  'max-len': ['error', { code: 120, comments: 124 }],
  'max-lines': ['error', 400],
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
      globals: { ...page, ...flags, ...shared, __corvex: 'readonly' }
    },
    rules: { ...rules, ...noEval }
  },
  {
    // Only browsers that speak the protocols get these.
    files: ['src/webhook/protocol/**/*.js', 'src/webhook/pages/inpage/guard.js'],
    languageOptions: { ecmaVersion: 2015 }
  },
  {
    // A page of our own.
    files: ['src/webhook/inspect/viewer/*.js'],
    languageOptions: { ecmaVersion: 2018 }
  },
  {
    // The same; its files are one text.
    files: ['src/scripting/report/viewer/*.js'],
    languageOptions: {
      ecmaVersion: 2018,
      sourceType: 'script',
      globals: {
        ...page,
        ...readonly(`run read byId make seconds counted sign addTerm baseName traceOf comparisonOf figureOf thumbnailOf
          showMark partOf draw reveal checksOf`)
      }
    },
    rules: { ...rules, ...noEval }
  },
  {
    // What these declare is for the code that they are given.
    files: ['guard.js', 'picturerect.js', 'asklines.js'].map((name) => 'src/webhook/**/' + name),
    rules: { 'no-unused-vars': 'off' }
  },
  {
    // Each file is one function, which is called by who reads it.
    files: ['src/scripting/**/*.js'],
    languageOptions: { ecmaVersion: 2016, sourceType: 'script' },
    rules: { ...rules, 'no-unused-expressions': 'off' }
  },
  {
    files: ['src/wrappers/web/hook/**/*.js'],
    plugins: { hook: plugin(rooms) },
    rules: { 'hook/needs': 'error' }
  },
  {
    files: ['tests/wrappers/web/hook/*.js'],
    languageOptions: {
      ecmaVersion: 2022,
      sourceType: 'script',
      globals: {
        ...page,
        ...readonly(`XPathResult frames innerWidth innerHeight screenX screenY outerWidth outerHeight
          devicePixelRatio`),
        ...shared, __corvex: 'readonly', test: 'readonly'
      }
    },
    rules: { ...rules, 'max-len': ['error', { code: 130, comments: 124 }] }
  },
  {
    files: ['eslint.config.js', 'cmake/**/*.js', 'docs/generator/*.js', 'tests/house/*.js', 'tests/reference/*.js'],
    languageOptions: {
      ecmaVersion: 2022,
      sourceType: 'commonjs',
      globals: readonly('require module process __dirname')
    },
    rules
  }
];
