// node docs/generator/reference.js PROGRAM: writes the reference in docs/reference from the declarations that the program
// prints, and from the examples of classes.
'use strict';

const { execFileSync } = require('child_process');
const fs = require('fs');
const path = require('path');

const { readDeclarations } = require('./declarations.js');
const { pagesOf } = require('./pages.js');

const folder = path.join(__dirname, '../reference');
const exampleFolder = path.join(folder, 'examples');

const typingsOf = (program) => execFileSync(program, ['typings'], { encoding: 'utf8', maxBuffer: 1 << 24 });

// The scripts of classes, by the names of these.
function classExamples() {
  const files = fs.readdirSync(exampleFolder).filter((file) => /^[A-Z]\w*\.js$/.test(file));
  return Object.fromEntries(files.map((file) =>
    [file.slice(0, -3), fs.readFileSync(path.join(exampleFolder, file), 'utf8')]));
}

const pages = (typings) => pagesOf(readDeclarations(typings), classExamples());

module.exports = { folder, typingsOf, classExamples, pages };

if (require.main === module) {
  for (const [file, text] of Object.entries(pages(typingsOf(process.argv[2])))) {
    fs.writeFileSync(path.join(folder, file), text);
  }
}
