// What test scripts have, told by scripts, and by the description of the object model.
'use strict';

const { execFileSync } = require('child_process');
const fs = require('fs');
const os = require('os');
const path = require('path');
const vm = require('vm');

const TOO_MANY = 17;

// Runs in the program: calls each function with too many arguments, and tells what it says of that.
function tell(global, languageHas, tooMany) {
  const many = new Array(tooMany).fill(1);
  const facts = {};
  function look(holder, prefix) {
    Object.getOwnPropertyNames(holder).filter((name) => languageHas.indexOf(name) < 0).forEach((name) => {
      const value = holder[name];
      facts[prefix + name] = typeof value;
      if (typeof value === 'function') {
        try {
          value.apply(null, many);
        } catch (e) {
          facts[prefix + name] = e.message;
        }
      }
    });
  }
  look(global, '');
  look(global.test, 'test.');
  return JSON.stringify(facts);
}

// By the names of all that scripts have beyond the language: the sentence for too many arguments, or else what it is.
function scriptFacts(program) {
  const language = vm.runInNewContext('Object.getOwnPropertyNames(globalThis)');
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'scriptfacts-'));
  const script = path.join(folder, 'facts.js');
  const call = '(' + tell + ')(this, ' + JSON.stringify(language) + ', ' + TOO_MANY + ')';
  fs.writeFileSync(script, 'test.log("FACTS" + ' + call + ');');
  try {
    return JSON.parse(/FACTS(.*)/.exec(execFileSync(program, ['run', script], { encoding: 'utf8' }))[1]);
  } finally {
    fs.rmSync(folder, { recursive: true });
  }
}

// The least and the most arguments, by such a sentence; null where it tells none.
function argumentCounts(sentence) {
  const match = / takes (\d+)(?: (?:to|or) (\d+))? argument/.exec(sentence);
  return match && [Number(match[1]), Number(match[2] || match[1])];
}

// The classes of the text that describes the object model: lines of members below the line of their class.
function modelClasses(text) {
  const classes = {};
  let current = null;
  for (const line of text.split('\n').filter(Boolean)) {
    const member = /^ {2}(\w+)(?:\((.*)\))?: (.+?)( \(read-only\))?$/.exec(line);
    if (!member) {
      const [name, base] = line.split(' : ');
      current = { base: base || '', properties: {}, methods: [] };
      classes[name] = current;
    } else if (member[2] === undefined) {
      current.properties[member[1]] = { type: member[3], readonly: Boolean(member[4]) };
    } else {
      const params = member[2].split(', ').filter(Boolean).map((each) => each.replace(/:.*/, ''));
      current.methods.push({ name: member[1], call: member[1] + '(' + params.join(', ') + ')', returns: member[3] });
    }
  }
  return classes;
}

module.exports = { scriptFacts, argumentCounts, modelClasses };
