// Gives: a mark in frames, by which the start scripts after it fail there. A script cannot declare a function whose name
// belongs to a property that cannot be redefined.
// Needs: nothing.
if (window !== window.top) {
  Object.defineProperty(window, "__corvex__topPageOnly", { value: 0 });
}
