// Gives: dates as text for the driver, and whether the browser side watches windows itself.
// Needs: runtime/natives, browsers.

// Year, month from 1, day, hours, minutes in the local zone; undefined for anything but a date.
function __corvex__convertJSDateToDateTimeString(date) {
  // By its class text: instanceof fails for a date of another frame.
  if (__corvex__natives.classOf(date) !== "[object Date]") {
    return undefined;
  }
  return [date.getFullYear(), date.getMonth() + 1, date.getDate(), date.getHours(), date.getMinutes()].join(",");
}

function __corvex__browserHookHandlesWindows() {
  return __corvex__topFlag("__corvex__improvedTabAndWindowSupport") &&
         (__corvex__topFlag("__corvex__mozilla") || __corvex__topFlag("__corvex__safari") ||
          __corvex__topFlag("__corvex__ie") || __corvex__topFlag("__corvex__edge") ||
          __corvex__topFlag("__corvex__googlechrome") || __corvex__topFlag("__corvex__chromiumbased"));
}
