(function () {
  function answer(value) { document.getElementById("answer").innerText = String(value); }
  function on(id, action) {
    document.getElementById(id).onclick = function () { answer("asked"); answer(action()); };
  }
  on("alert", function () { alert("It's a \"text\" & more"); return "shown"; });
  on("confirm", function () { return confirm("Sure?"); });
  on("prompt", function () {
    var name = prompt("Your name?", "Ada");
    return name === null ? "null" : "'" + name + "'";
  });
  on("two", function () { return confirm("First?") + " " + confirm("Second?"); });
  if (location.search === "?ask") { answer(confirm("In a frame")); }
}());
