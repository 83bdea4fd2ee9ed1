// Reads a declaration file of test scripts: its sections, and what each of them declares.
'use strict';

const ts = require('typescript');

const sentence = (comment) => ts.getTextOfJSDocComment(comment) || '';

function docOf(node) {
  const doc = ts.getJSDocCommentsAndTags(node).filter(ts.isJSDoc).pop();
  const tags = doc && doc.tags || [];
  const params = {};
  for (const tag of tags.filter(ts.isJSDocParameterTag)) {
    params[tag.name.getText()] = sentence(tag.comment).replace(/\s+/g, ' ');
  }
  return {
    text: doc ? sentence(doc.comment).replace(/\s+/g, ' ') : '',
    params,
    deprecated: tags.filter((tag) => tag.tagName.text === 'deprecated').map((tag) => sentence(tag.comment)).pop(),
    examples: tags.filter((tag) => tag.tagName.text === 'example').map((tag) => exampleText(tag))
  };
}

// What TypeScript gives of an example lacks the blanks at the beginnings of its lines.
function exampleText(tag) {
  const lines = tag.getFullText().split('\n').map((line) => line.replace(/^\s*\* ?/, '').trimEnd());
  return lines.slice(1).join('\n').replace(/\/$/, '').trim();
}

const plainTypes = [[/ObjectNamed<\w+>/g, 'AnyObject'], [/\bName\b/g, 'string'], [/\b(Answer|Result)\b/g, 'any']];

function typeText(type) {
  return type ? plainTypes.reduce((text, [from, to]) => text.replace(from, to), type.getText()) : 'any';
}

function signatureOf(node, name) {
  const doc = docOf(node);
  const params = node.parameters.map((param) => ({
    name: param.name.getText(),
    optional: Boolean(param.questionToken),
    rest: Boolean(param.dotDotDotToken),
    type: typeText(param.type),
    text: doc.params[param.name.getText()] || ''
  }));
  return { name, returns: typeText(node.type), ...doc, params };
}

function addTo(list, name, signature) {
  const known = list.find((each) => each.name === name);
  if (known) {
    known.signatures.push(signature);
  } else {
    list.push({ name, signatures: [signature] });
  }
}

function addMembers(target, members) {
  for (const member of members) {
    const name = member.name.getText();
    if (ts.isMethodSignature(member)) {
      addTo(target.methods, name, signatureOf(member, name));
    } else if (!ts.isSetAccessor(member)) {
      const readonly = (member.modifiers || []).some((each) => each.kind === ts.SyntaxKind.ReadonlyKeyword);
      target.properties.push({ name, type: typeText(member.type), readonly, doc: docOf(member).text });
    }
  }
}

function classIn(section, name) {
  let found = section.classes.find((each) => each.name === name);
  if (!found) {
    found = { name, base: '', doc: '', properties: [], methods: [], statics: { properties: [], methods: [] } };
    section.classes.push(found);
  }
  return found;
}

function addVariable(section, statement) {
  const variable = statement.declarationList.declarations[0];
  const name = variable.name.getText();
  const doc = docOf(statement);
  if (/^[A-Z]/.test(name)) {
    const cls = classIn(section, name);
    cls.doc = doc.text;
    addMembers(cls.statics, variable.type.members);
    return;
  }
  const constant = { name, doc, type: typeText(variable.type), properties: [], methods: [] };
  addMembers(constant, ts.isTypeLiteralNode(variable.type) ? variable.type.members.filter((m) => m.name) : []);
  section.constants.push(constant);
}

function addStatement(section, statement) {
  if (ts.isFunctionDeclaration(statement)) {
    addTo(section.functions, statement.name.text, signatureOf(statement, statement.name.text));
  } else if (ts.isModuleDeclaration(statement)) {
    for (const each of statement.body.statements) {
      const name = statement.name.text + '.' + each.name.text;
      addTo(section.functions, name, signatureOf(each, name));
    }
  } else if (ts.isVariableStatement(statement)) {
    addVariable(section, statement);
  } else if (ts.isInterfaceDeclaration(statement)) {
    const cls = classIn(section, statement.name.text);
    cls.base = statement.heritageClauses ? statement.heritageClauses[0].types[0].getText() : '';
    cls.doc = docOf(statement).text;
    addMembers(cls, statement.members);
  }
}

// The headings of a file: lines such as "// == Waiting ==", and the comment that comes after each.
function sectionsOf(text) {
  const heading = /^\/\/ == (.+) ==\n((?:\/\/ .*\n)*)/gm;
  return [...text.matchAll(heading)].map((match) => ({
    title: match[1],
    prose: match[2].replace(/^\/\/ /gm, '').trim(),
    start: match.index + match[0].length,
    statements: [],
    functions: [],
    constants: [],
    classes: []
  }));
}

const textOf = (statements) =>
  statements.map((statement) => statement.getFullText().replace(/^(\s*\/\/ .*\n)+/, '')).join('').trim();

// Sections with their functions, constants and classes; of one that declares types, its whole text in `types`.
function readDeclarations(text) {
  const source = ts.createSourceFile('corvex.d.ts', text, ts.ScriptTarget.Latest, true);
  const sections = sectionsOf(text);
  for (const statement of source.statements) {
    const section = sections.filter((each) => each.start <= statement.getStart()).pop();
    section.statements.push(statement);
    addStatement(section, statement);
  }
  for (const section of sections) {
    section.types = section.statements.some(ts.isTypeAliasDeclaration) ? textOf(section.statements) : '';
    delete section.statements;
  }
  return sections;
}

module.exports = { readDeclarations };
