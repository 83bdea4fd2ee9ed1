// What the program tells editors, against what scripts have; and the reference against that.
'use strict';

const assert = require('assert');
const fs = require('fs');
const path = require('path');
const { test } = require('node:test');

const ts = require('typescript');

const { readDeclarations } = require('../../docs/generator/declarations.js');
const reference = require('../../docs/generator/reference.js');
const { scriptFacts, argumentCounts, modelClasses } = require('./scriptfacts.js');

const root = path.join(__dirname, '../..');
const program = path.resolve(root, process.env.CORVEX_PROGRAM || 'build/bin/corvexweb');
const read = (file) => fs.readFileSync(path.join(root, file), 'utf8');
const pageFiles = fs.readdirSync(reference.folder).filter((file) => file.endsWith('.md'));

const typings = reference.typingsOf(program);
const sections = readDeclarations(typings).filter((section) => !section.types);
const functions = sections.flatMap((section) => section.functions);
const constants = sections.flatMap((section) => section.constants);
const classes = sections.flatMap((section) => section.classes);
const examples = reference.classExamples();
const membersOf = (cls) => [...cls.properties, ...cls.methods, ...cls.statics.properties, ...cls.statics.methods];
const names = (list) => list.map((each) => each.name).sort();

function declaredCounts(entry) {
  const least = entry.signatures.map((each) => each.params.filter((param) => !param.optional).length);
  const most = entry.signatures.map((each) => each.params.length);
  return [Math.min(...least), Math.max(...most)];
}

test('every function of scripts is declared, and takes as many arguments as it does', () => {
  const facts = scriptFacts(program);
  const withStatics = classes.filter((cls) => cls.statics.properties.length || cls.statics.methods.length);
  assert.deepEqual(Object.keys(facts).sort(), names([...functions, ...constants, ...withStatics, { name: 'test' }]));
  // These take any number, or count none themselves.
  const uncounted = { 'test.log': [1, 1], 'test.step': [2, 2], 'test.throws': [1, 2], source: [1, 1], readTable: [1, 1],
    // The other arguments are for events without a position, of which no page takes one.
    sendEvent: [4, 4] };
  for (const entry of functions) {
    assert.deepEqual(declaredCounts(entry), uncounted[entry.name] || argumentCounts(facts[entry.name]), entry.name);
  }
});

const plainTypes = { int: 'number', 'unsigned int': 'number', double: 'number', bool: 'boolean',
  HTML_Object: 'AnyObject' };

test('classes and their members are those of the object model', () => {
  const model = modelClasses(read('tests/wrappers/web/catalogue/objectmodel.txt'));
  delete model.Functions;
  const real = Object.keys(model).filter((name) => model[name].base || Object.keys(model[name].properties).length ||
    model[name].methods.length);
  assert.deepEqual(names(classes), [...real, 'HTML_Event'].sort());
  const keys = classes.find((cls) => cls.name === 'HTML_Event').statics.properties;
  assert.deepEqual(keys.map((each) => each.type), ['1', '2', '4']);
  for (const name of real) {
    const cls = classes.find((each) => each.name === name);
    assert.equal(cls.base, model[name].base, name);
    assert.deepEqual(names(cls.properties), Object.keys(model[name].properties).sort(), name);
    for (const property of cls.properties) {
      const { type, readonly } = model[name].properties[property.name];
      assert.equal(property.readonly, readonly, name + '.' + property.name);
      const isColor = name === 'CSSProperties' && /color/i.test(property.name);
      const plain = new RegExp('^' + (plainTypes[type] || type) + '$');
      const expected = type === 'Array' ? /\[\]$/ : isColor ? /^CssColor/ : plain;
      assert.match(property.type, expected, name + '.' + property.name);
    }
    const methods = model[name].methods.filter((method) => !model[name].properties[method.name]);
    const calls = [...cls.methods, ...cls.statics.methods].flatMap((method) => method.signatures.map((each) =>
      each.name + '(' + each.params.map((param) => param.name).join(', ') + '): ' + each.returns));
    assert.deepEqual(calls.sort(), methods.map((method) =>
      method.call + ': ' + (plainTypes[method.returns] || method.returns)).sort(), name);
  }
});

test('everything is described, and nothing that there is not', () => {
  for (const entry of functions) {
    assert.ok(entry.signatures.some((each) => each.examples.length), entry.name + ' has no example');
    for (const { name, text, params } of entry.signatures) {
      assert.ok(text && params.every((param) => param.text), name + ' or one of its parameters has no sentence');
    }
  }
  for (const cls of classes) {
    assert.ok(cls.doc, cls.name + ' has no sentence in members.txt');
    for (const member of membersOf(cls)) {
      assert.ok(member.doc || member.signatures && member.signatures[0].text, cls.name + '.' + member.name +
        ' has no sentence in members.txt');
    }
  }
  const known = new Set(classes.flatMap((cls) =>
    [cls.name, cls.name + '.*', ...membersOf(cls).map((member) => cls.name + '.' + member.name)]));
  const lines = [...read('src/webhook/typings/members.txt').matchAll(/^([\w.*]+)(?:: .+?)? = /gm)];
  assert.deepEqual(lines.map((line) => line[1]).filter((key) => !known.has(key)), []);
});

test('the example of a class uses each of its own members', () => {
  assert.deepEqual(Object.keys(examples).filter((name) => !classes.some((cls) => cls.name === name)), []);
  const elements = sections.find((section) => section.title === 'Page elements').classes;
  for (const cls of classes.filter((each) => elements.includes(each) || membersOf(each).length)) {
    assert.ok(examples[cls.name], cls.name + ' has no example');
    for (const member of cls.name === 'CSSProperties' ? [] : membersOf(cls)) {
      assert.match(examples[cls.name], new RegExp('[."]' + member.name + '\\b'), cls.name + '.' + member.name);
    }
  }
});

test('every property that a search treats in its own way is in the page on names', () => {
  const hook = (file) => read('src/wrappers/web/hook/' + file);
  const [tests] = /var __corvex__propertyTests = \{\n[^]*?\n\};/.exec(hook('14_matching.js'));
  const [searchOnly] = /__corvex__searchOnlyProperties = \{.*\}/.exec(hook('15_search/020_name.js'));
  const special = [...tests.matchAll(/^ {2}(\w+):/gm), ...searchOnly.matchAll(/(\w+): 1/g)].map((match) => match[1]);
  const headings = [...read('docs/reference/names.md').matchAll(/^## (.+)$/gm)]
    .flatMap((match) => match[1].split(', '));
  assert.ok(special.length > 8);
  // A misspelling that old scripts have.
  assert.deepEqual(special.filter((name) => name !== 'occurance' && !headings.includes(name)), []);
});

test('the pages of the reference are up to date, and their links lead somewhere', () => {
  const pages = reference.pages(typings);
  assert.deepEqual([...Object.keys(pages), 'names.md'].sort(), pageFiles.sort());
  for (const [file, text] of Object.entries(pages)) {
    assert.equal(read('docs/reference/' + file), text, 'run ./dev reference, and review what it changed');
    for (const [, target, anchor] of text.matchAll(/\]\(([\w-]*(?:\.md)?)#([\w-]+)\)/g)) {
      const page = (pages[target || file] || '').toLowerCase();
      const places = [...page.matchAll(/^## (.+)$|<a id="([^"]+)"/gm)]
        .map((match) => match[2] || match[1].replace(/\./g, ''));
      assert.ok(places.includes(anchor), file + ': ' + target + '#' + anchor);
    }
  }
});

// What the compiler complains of, of scripts that are checked strictly with the declarations alone.
function complaints(scripts) {
  const options = { strict: true, noEmit: true, allowJs: true, checkJs: true, lib: ['lib.es2016.d.ts'], types: [],
    target: ts.ScriptTarget.ES2016, moduleDetection: ts.ModuleDetectionKind.Force };
  const files = { 'corvex.d.ts': typings, ...scripts };
  const host = ts.createCompilerHost(options);
  const { getSourceFile, fileExists, readFile } = host;
  host.fileExists = (file) => file in files || fileExists(file);
  host.readFile = (file) => files[file] || readFile(file);
  host.getSourceFile = (file, ...rest) =>
    file in files ? ts.createSourceFile(file, files[file], options.target) : getSourceFile(file, ...rest);
  return ts.getPreEmitDiagnostics(ts.createProgram(Object.keys(files), options, host)).map((each) =>
    (each.file ? each.file.fileName + ': ' : '') + ts.flattenDiagnosticMessageText(each.messageText, '\n'));
}

test('the compiler takes the examples', () => {
  const scripts = {};
  for (const file of pageFiles) {
    const blocks = [...read('docs/reference/' + file).matchAll(/^```js\n([^]*?)^```$/gm)].map((match) => match[1]);
    scripts[file + '.js'] = blocks.map((block) => '(function () {\n' + block + '})();\n').join('');
  }
  for (const file of fs.readdirSync(path.join(root, 'examples/shop/tests'))) {
    scripts[file] = read('examples/shop/tests/' + file);
  }
  // What one of the examples takes from another file.
  scripts['greeting.d.ts'] = 'declare function greeting(name: string): string;';
  scripts['cast.js'] = 'var list = /** @type {HTML_Select} */ (findObject(":Sizes")); list.selectedIndex = 1;';
  assert.deepEqual(complaints(scripts), []);
});

test('the compiler finds what is wrong', () => {
  const faults = ["mouseClick();", "findObject(\"{tagName='SELECT' id='x'}\").selectdIndex;", "openUrl(1);",
    "typeText('x', 'y', 'z');", "test.verfy(true);", "findObject(\"{tagName='OPTION'}\").index = 1;",
    "HTML_Event.Alt = 1;", "script.name = '';", "useInput('hand');"];
  for (const fault of faults) {
    assert.equal(complaints({ 'fault.js': fault }).length, 1, fault);
  }
});
