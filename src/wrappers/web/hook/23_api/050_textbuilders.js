// Gives: the functions of Corvex that build what an event-to-string hook returns.
// Needs: api/objectname, api/forwarders.

Corvex.createItemName = function () {
  throw "Corvex.createItemName is not supported anymore, use Corvex.addItemTextForEventObjectHook to setup a hook " +
    "function for the item text";
};

// Records a clickTab. tabObject: the element of the whole tab widget.
Corvex.createClickTabInformation = function (tabObject, tabTitle) {
  return "&tabTitle=" + escape(tabTitle) + "&tabWidgetName=" + escape(Corvex.nameOf(tabObject));
};

// Records a clickItem on the menu.
Corvex.createClickItemInformationForMenuItem = function (menuElem, itemText) {
  return "&menuname=" + escape(Corvex.nameOf(menuElem)) +
    "&menuitemtext=" + escape(Corvex.cleanString(itemText));
};

// The month is written from 1, a Date counts it from 0.
Corvex.createChooseDateInformation = function (dateObj) {
  return "&selectedYear=" + escape(dateObj.getFullYear()) +
    "&selectedMonth=" + escape(dateObj.getMonth() + 1) +
    "&selectedDay=" + escape(dateObj.getDate());
};
