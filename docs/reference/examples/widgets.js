// An extension script for the toolkit of widgets.html, in which an attribute tells what an element is.
var TeaExtension = {
  getValue: function (bar) { return Number(bar.textContent); },
  setValue: function (bar, value) { bar.textContent = value; },
  getMinimum: function () { return 0; },
  getMaximum: function () { return 100; },

  getDate: function (field) { return new Date(field.textContent); },
  setDate: function (field, date) {
    function two(number) { return (number < 10 ? '0' : '') + number; }
    field.textContent = date.getFullYear() + '-' + two(date.getMonth() + 1) + '-' + two(date.getDate()) + 'T' +
      two(date.getHours()) + ':' + two(date.getMinutes());
  },

  getMenuItemCount: function (menu) { return menu.children.length; },
  getMenuItemAt: function (menu, index) { return menu.children[index]; },

  getVisibleEventCount: function (calendar) { return calendar.children.length; },
  getVisibleEventAt: function (calendar, index) { return calendar.children[index]; },

  itemView: function (item) { return item.closest('[data-widget=custom_itemview]'); },
  parentItem: function (item) { return item.parentNode.closest('li'); },
  itemText: function (item) { return item.firstChild.data; },
  numColumns: function () { return 1; },
  childCount: function (item) { return item.getElementsByTagName('li').length; },
  childItem: function (item, row) { return item.getElementsByTagName('li')[row]; }
};

Corvex.addTypeOfHook(function (node) {
  var widget = node.getAttribute && node.getAttribute('data-widget');
  if (widget) {
    return widget + '_Tea';
  }
  return node.closest && node.localName === 'li' && node.closest('[data-widget]') ? 'custom_item_Tea' : undefined;
});
