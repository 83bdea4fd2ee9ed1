// Gives: the beginning of a start script, which fails as a whole where the frame guard found a frame.
// Needs: frameguard.js.
function __corvex__topPageOnly() {}
