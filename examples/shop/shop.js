(function () {
  "use strict";
  var goods = [
    { id: "sencha", name: "Sencha", category: "tea", price: 8.5, stock: 12 },
    { id: "oolong", name: "Oolong", category: "tea", price: 11, stock: 0 },
    { id: "pot", name: "Cast-iron pot", category: "tools", price: 49, stock: 3 },
    { id: "whisk", name: "Bamboo whisk", category: "tools", price: 14.25, stock: 7 },
    { id: "box", name: "Box for him & her", category: "gifts", price: 32, stock: 5 },
    { id: "card", name: "\"Thank you\" card", category: "gifts", price: 2.75, stock: 40 }
  ];
  var shippingTo = { Austria: 4, France: 6.5, Norway: 9 };

  function basket() {
    try {
      return JSON.parse(sessionStorage.getItem("basket") || "{}");
    } catch (e) {
      return {};
    }
  }

  function put(id) {
    var content = basket();
    content[id] = (content[id] || 0) + 1;
    sessionStorage.setItem("basket", JSON.stringify(content));
    showCount();
  }

  function pieces() {
    var content = basket();
    return Object.keys(content).reduce(function (sum, id) { return sum + content[id]; }, 0);
  }

  function showCount() {
    document.getElementById("count").textContent = pieces();
  }

  function matches(good) {
    var form = document.forms.filter;
    return (form.category.value === "all" || form.category.value === good.category) &&
      (!form.instock.checked || good.stock > 0) &&
      good.name.toLowerCase().indexOf(form.search.value.toLowerCase()) >= 0;
  }

  function card(good) {
    var item = document.createElement("li");
    item.innerHTML = "<h2></h2><span class='price'></span> <button name='add'>Add to basket</button>";
    item.querySelector("h2").textContent = good.name;
    item.querySelector(".price").textContent = good.price.toFixed(2);
    item.querySelector("button").id = "add-" + good.id;
    item.querySelector("button").disabled = good.stock === 0;
    item.querySelector("button").addEventListener("click", function () { put(good.id); });
    return item;
  }

  function showGoods() {
    var list = document.getElementById("goods");
    var found = goods.filter(matches);
    list.innerHTML = "";
    found.forEach(function (good) { list.appendChild(card(good)); });
    document.getElementById("hits").textContent = found.length + " of " + goods.length + " articles";
  }

  function showCatalogue() {
    var form = document.forms.filter;
    form.addEventListener("submit", function (event) { event.preventDefault(); });
    form.addEventListener("change", showGoods);
    form.addEventListener("input", showGoods);
    showGoods();
    showCount();
  }

  function showShipping() {
    var country = document.getElementById("country").value;
    document.getElementById("shipping").textContent = "Shipping " + shippingTo[country].toFixed(2);
  }

  function order(event) {
    var form = document.forms.order;
    var text = form.elements.name.value === ""
      ? "Please tell us your name."
      : "Thank you, " + form.elements.name.value + "! We ship to " + form.elements.country.value + ".";
    // The order takes a moment, as it does where a server answers.
    setTimeout(function () { document.getElementById("message").textContent = text; }, 250);
    event.preventDefault();
  }

  function showBasket() {
    var content = basket();
    var total = 0;
    goods.forEach(function (good) {
      if (content[good.id]) {
        var row = document.querySelector("#basket tbody").insertRow();
        [good.name, content[good.id], (good.price * content[good.id]).toFixed(2)].forEach(function (text) {
          row.insertCell().textContent = text;
        });
        total += good.price * content[good.id];
      }
    });
    document.getElementById("total").textContent = total.toFixed(2);
    document.getElementById("country").addEventListener("change", showShipping);
    document.forms.order.addEventListener("submit", order);
    showShipping();
  }

  function takeAttachment(event) {
    document.getElementById("attached").textContent = event.target.files[0].name;
    // The file is checked for a moment before it can be sent.
    setTimeout(function () { document.querySelector("[name=send]").disabled = false; }, 300);
  }

  // No page holds a script of its own, so that the shop also works under a policy that forbids them.
  if (document.forms.filter) {
    showCatalogue();
  } else if (document.forms.order) {
    showBasket();
  } else {
    document.querySelector("[name=attachment]").addEventListener("change", takeAttachment);
  }
}());
