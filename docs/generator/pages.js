// Writes the pages of the reference from what the declarations say.
'use strict';

// A class with more members than this has them listed by their names alone.
const MOST_ROWS = 100;

const fileOf = (section) => section.title.toLowerCase().replace(/\W+/g, '-') + '.md';
const anchorOf = (name) => name.toLowerCase().replace(/[^\w-]/g, '');
const code = (text) => '`' + text + '`';
const cell = (text) => text.replace(/\|/g, '\\|');
const script = (text) => '```js\n' + text.trim() + '\n```\n\n';

function paragraph(text) {
  const lines = [''];
  for (const word of text.split(/\s+/)) {
    const line = lines[lines.length - 1];
    if (line && line.length + word.length >= 120) {
      lines.push(word);
    } else {
      lines[lines.length - 1] = line ? line + ' ' + word : word;
    }
  }
  return lines.join('\n') + '\n\n';
}

function callText(signature) {
  let text = '';
  let open = 0;
  for (const param of signature.params) {
    const shown = (text ? ', ' : '') + (param.rest ? '...' : '') + param.name;
    text += param.optional ? '[' + shown : shown;
    open += param.optional ? 1 : 0;
  }
  return signature.name + '(' + text + ']'.repeat(open) + ')';
}

function parameterList(signature) {
  const rows = signature.params.map((param) =>
    '- ' + code(param.name) + ' (' + code(param.type) + '): ' + param.text + '\n');
  return rows.length ? rows.join('') + '\n' : '';
}

function functionText(entry) {
  let text = '## ' + entry.name + '\n\n';
  for (const signature of entry.signatures) {
    const result = signature.returns === 'void' ? '' : ' gives ' + code(signature.returns);
    const deprecated = signature.deprecated ? ' Deprecated: ' + signature.deprecated : '';
    text += '**' + code(callText(signature)) + '**' + result + '\n\n';
    text += paragraph(signature.text + deprecated) + parameterList(signature);
    text += signature.examples.map(script).join('');
  }
  return text;
}

function constantText(constant) {
  const rows = constant.properties.map((property) =>
    '| ' + code(constant.name + '.' + property.name) + ' | ' + cell(property.doc) + ' |\n');
  const table = rows.length ? '| property | meaning |\n|---|---|\n' + rows.join('') + '\n' : '';
  return '## ' + constant.name + '\n\n' + paragraph(constant.doc.text) + table +
    constant.doc.examples.map(script).join('');
}

function propertyRow(property, prefix) {
  const type = property.type + (property.readonly && !prefix ? ', read-only' : '');
  return '| ' + code(prefix + property.name) + ' | ' + cell(type) + ' | ' + cell(property.doc) + ' |\n';
}

function methodRow(method, prefix) {
  const calls = method.signatures.map((signature) => code(prefix + callText(signature)));
  const returns = method.signatures[0].returns;
  return '| ' + cell([...new Set(calls)].join('<br>')) + ' | ' + (returns === 'void' ? '' : cell(returns)) + ' | ' +
    cell(method.signatures[0].text) + ' |\n';
}

function memberTables(cls) {
  if (cls.properties.length > MOST_ROWS) {
    return paragraph('Its properties: ' + cls.properties.map((each) => code(each.name)).join(', ') + '.');
  }
  const prefix = cls.name + '.';
  const properties = cls.statics.properties.map((each) => propertyRow(each, prefix))
    .concat(cls.properties.map((each) => propertyRow(each, '')));
  const methods = cls.statics.methods.map((each) => methodRow(each, prefix))
    .concat(cls.methods.map((each) => methodRow(each, '')));
  return (properties.length ? '| property | type | meaning |\n|---|---|---|\n' + properties.join('') + '\n' : '') +
    (methods.length ? '| method | gives | what it does |\n|---|---|---|\n' + methods.join('') + '\n' : '');
}

function classText(cls, linkTo, example) {
  const base = cls.base ? ' It has all that ' + linkTo(cls.base) + ' has.' : '';
  return '## ' + cls.name + '\n\n' + paragraph(cls.doc + base) + memberTables(cls) + (example ? script(example) : '');
}

const isBare = (cls, examples) => !cls.properties.length && !cls.methods.length && !examples[cls.name];

function bareTable(classes, linkTo) {
  const rows = classes.map((cls) => '| <a id="' + anchorOf(cls.name) + '"></a>' + code(cls.name) + ' | ' +
    linkTo(cls.base) + ' | ' + cell(cls.doc) + ' |\n');
  return rows.length
    ? '## Classes without members of their own\n\n| class | has all that this has | what it stands for |\n' +
      '|---|---|---|\n' + rows.join('') + '\n'
    : '';
}

function pageText(section, linkTo, examples) {
  const prose = section.prose ? paragraph(section.prose) : '';
  if (section.types) {
    return '# ' + section.title + '\n\n' + prose + '```ts\n' + section.types + '\n```\n';
  }
  const bare = section.classes.filter((cls) => cls.base && isBare(cls, examples));
  const others = section.classes.filter((cls) => !bare.includes(cls));
  const text = '# ' + section.title + '\n\n' + prose + section.functions.map(functionText).join('') +
    section.constants.map(constantText).join('') +
    others.map((cls) => classText(cls, linkTo, examples[cls.name])).join('') + bareTable(bare, linkTo);
  return text.trimEnd() + '\n';
}

function indexText(sections) {
  const lines = sections.map((section) => {
    const file = fileOf(section);
    const entries = section.types ? [] : [...section.functions, ...section.constants, ...section.classes];
    const links = entries.map((each) => '[' + each.name + '](' + file + '#' + anchorOf(each.name) + ')');
    return paragraph('**[' + section.title + '](' + file + ')**' + (links.length ? ': ' + links.join(', ') : ''));
  });
  return '# Reference of test scripts\n\n' +
    paragraph('[The guide](../scripting.md) tells how scripts are written and run; here stands each function ' +
      'and each class, with examples. They are run against the pages in [examples](examples), which begin at ' +
      '`shop.html`; those of widgets take the extension script `widgets.js` there.') +
    paragraph('**[Properties of names](names.md)**: what may stand in the name of an object') +
    lines.join('').trimEnd() + '\n';
}

// The pages by their file names. `examples` has the scripts of classes by the names of these.
function pagesOf(sections, examples) {
  const home = {};
  for (const section of sections) {
    section.classes.forEach((cls) => { home[cls.name] = section; });
  }
  const pages = { 'README.md': indexText(sections) };
  for (const section of sections) {
    const linkTo = (name) => '[' + name + '](' + (home[name] === section ? '' : fileOf(home[name])) + '#' +
      anchorOf(name) + ')';
    pages[fileOf(section)] = pageText(section, linkTo, examples);
  }
  return pages;
}

module.exports = { pagesOf };
