// Gives: that dialogs are the browser's own. Left to itself, the script knows of few browsers only that these can be
// answered. Needs: the hook script.
__corvex__opensNativeDialogs = function () {
  return true;
};
