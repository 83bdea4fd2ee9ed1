// What the files of the hook script give each other. A file is a room: its path without numbers and endings, such as
// "runtime/contexts". The linter's rule `needs` has each room say, in its second line, which other rooms declare the names
// that it uses:
//
//   // Gives: what the room is for, in one line.
//   // Needs: runtime/nodes, runtime/text.
//
// The rooms stand in the order of the script. The namespace object that the prelude makes is there for all.
'use strict';

const fs = require('fs');
const path = require('path');

const espree = require('espree');
const { KEYS: VISITOR_KEYS } = require('eslint-visitor-keys');

const WIDTH = 120;
// Objects whose members are names of their own.
const NAMESPACES = ['__corvex', 'Corvex', '__corvex__xpath'];

function roomName(file) {
  return file.replace(/\.js(\.in)?$/, '').split('/').map((part) => part.replace(/^\d+_/, '')).join('/');
}

// The name that an expression stands for, without the windows before it: "__corvex__handler", "__corvex.simplifyText".
function nameOf(node) {
  if (node.type === 'Identifier') {
    return node.name;
  }
  if (node.type !== 'MemberExpression' || node.computed) {
    return '';
  }
  const owner = nameOf(node.object);
  if (owner === 'window' || owner === 'top') {
    return node.property.name;
  }
  return NAMESPACES.includes(owner) ? owner + '.' + node.property.name : '';
}

// enters: whether to go into a node.
function forEachNode(node, visit, enters) {
  visit(node);
  for (const key of VISITOR_KEYS[node.type]) {
    for (const child of [].concat(node[key])) {
      if (child && (!enters || enters(child, node))) {
        forEachNode(child, visit, enters);
      }
    }
  }
}

// Whether a node is evaluated with the script: not what stands in a function, but for one that is called at once.
function isEvaluatedAtOnce(node, parent) {
  return !/Function/.test(node.type) || (parent.type === 'CallExpression' && parent.callee === node);
}

function declaredNames(ast) {
  const names = [];
  for (const statement of ast.body) {
    if (statement.type === 'FunctionDeclaration') {
      names.push(statement.id.name);
    } else if (statement.type === 'VariableDeclaration') {
      names.push(...statement.declarations.map((one) => one.id.name));
    }
  }
  forEachNode(ast, (node) => {
    const name = node.type === 'AssignmentExpression' ? nameOf(node.left) : '';
    if (/^(__corvex__|__corvex\.|Corvex\.)/.test(name)) {
      names.push(name);
    }
  }, isEvaluatedAtOnce);
  return [...new Set(names)];
}

// The rooms of a folder in the order of the script: name, file, names that it declares.
function readRooms(folder) {
  const files = fs.readdirSync(folder, { recursive: true }).filter((file) => /\.js(\.in)?$/.test(file));
  return files.sort().map((file) => {
    const text = fs.readFileSync(path.join(folder, file), 'utf8').replace(/^@.*@$/gm, '');
    return { name: roomName(file), file: path.join(folder, file), names: declaredNames(espree.parse(text,
      { ecmaVersion: 5 })) };
  });
}

function usedNames(sourceCode) {
  const scope = sourceCode.scopeManager.globalScope;
  const names = new Set(scope.through.map((reference) => reference.identifier.name));
  scope.variables.filter((one) => one.references.length > 0).forEach((one) => names.add(one.name));
  forEachNode(sourceCode.ast, (node) => names.add(node.type === 'MemberExpression' ? nameOf(node) : ''));
  return names;
}

function needsText(rooms) {
  let line = '// Needs: ';
  const lines = [];
  rooms.forEach((room, i) => {
    const part = room + (i < rooms.length - 1 ? ', ' : '');
    if ((line + part + '.').trimEnd().length > WIDTH) {
      lines.push(line.trimEnd());
      line = '//   ';
    }
    line += part;
  });
  return lines.concat(line + (rooms.length ? '' : 'nothing') + '.').join('\n');
}

function plugin(rooms) {
  const roomOf = new Map();
  for (const room of rooms) {
    room.names.filter((name) => !roomOf.has(name)).forEach((name) => roomOf.set(name, room));
  }

  function neededRooms(sourceCode, own) {
    const used = usedNames(sourceCode);
    const needed = new Set([...used].map((name) => roomOf.get(name)));
    const namespaces = new Set([...used].filter((name) => name.includes('.')).map((name) => name.split('.')[0]));
    for (const namespace of namespaces) {
      // Who adds a member, or uses one that no room declares, needs the namespace itself.
      const members = [...used].filter((name) => name.startsWith(namespace + '.'));
      if (members.every((name) => roomOf.has(name) && !own.names.includes(name))) {
        needed.delete(roomOf.get(namespace));
        members.forEach((name) => needed.add(roomOf.get(name)));
      }
    }
    return rooms.filter((room) => needed.has(room) && room !== own).map((room) => room.name);
  }

  const needs = {
    meta: { type: 'problem', fixable: 'code', schema: [] },
    create(context) {
      return {
        Program(node) {
          const sourceCode = context.sourceCode;
          const own = rooms.find((room) => room.file === context.filename) || { names: declaredNames(sourceCode.ast) };
          const text = sourceCode.getText();
          const head = /^\/\/ Gives: [^\n]+\.\n(\/\/ Needs: (?:[^\n]+\n\/\/ {3})*[^\n]*)\n/.exec(text);
          if (!head) {
            context.report({ node, message: 'A file opens with the lines "// Gives: ... ." and "// Needs: ... .".' });
            return;
          }
          const right = needsText(neededRooms(sourceCode, own));
          if (head[1] !== right) {
            const start = head[0].indexOf(head[1]);
            context.report({
              loc: sourceCode.getLocFromIndex(start),
              message: 'What the file uses makes this line: ' + right,
              fix: (fixer) => fixer.replaceTextRange([start, start + head[1].length], right)
            });
          }
        }
      };
    }
  };
  return { rules: { needs } };
}

module.exports = { readRooms, declaredNames, plugin };
