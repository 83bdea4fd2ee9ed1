// Gives: __corvex__whilePageStays, __corvex__quietly and __corvex__kept: what was read is kept for one action's time.
// Needs: runtime/natives, runtime/state.

var __corvex__keptAnswers = null;

// Calls action, which changes nothing in the page, and gives its answer. For actions that ask the same of the same
// elements again and again, as naming all of them does.
function __corvex__whilePageStays(action) {
  var outer = __corvex__keptAnswers;
  __corvex__keptAnswers = outer || __corvex__createMap();
  try {
    return action();
  } finally {
    __corvex__keptAnswers = outer;
  }
}

// As __corvex__whilePageStays, and searches do not report as they would each, as if a recording were on. The current
// context is the same afterwards.
function __corvex__quietly(action) {
  var recording = window.__corvex__recording;
  var context = __corvex__windowState.ctxwin;
  window.__corvex__recording = true;
  try {
    return __corvex__whilePageStays(action);
  } finally {
    window.__corvex__recording = recording;
    __corvex__windowState.ctxwin = context;
  }
}

// read(o); while the page stays, the first answer for each object.
function __corvex__kept(read, o) {
  if (!__corvex__keptAnswers) {
    return read(o);
  }
  var answers = __corvex__keptAnswers.get(read);
  if (!answers) {
    answers = __corvex__createMap();
    __corvex__keptAnswers.set(read, answers);
  }
  var answer = answers.get(o);
  if (answer === undefined) {
    answer = read(o);
    answers.set(o, answer);
  }
  return answer;
}
