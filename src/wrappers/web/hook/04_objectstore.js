// Gives: top.__corvex__globalObjectRefStore, references of page objects into it, and the objects of references.
// Needs: runtime/natives, properties/path.

top.__corvex__globalObjectRefStore = [];

// The place of each object of a store, kept beside the store itself: others may append to the store or put another in
// its place. A place is only a guess until the entry was compared.
var __corvex__refPlaces = (function () {
  var store = null;
  var places = null;
  var known = 0;

  function start(newStore) {
    store = newStore;
    places = __corvex__createMap();
    known = 0;
  }

  // An entry that cannot be read, such as a node of a closed window, hides no other.
  function isAt(theStore, place, obj) {
    try {
      return theStore[place] === obj;
    } catch (e) {
      return false;
    }
  }

  function learnEntry(place) {
    try {
      if (places.get(store[place]) === undefined) {
        places.set(store[place], place);
      }
    } catch (e) {
      // As above.
    }
  }

  function walk(theStore, obj) {
    for (var i = 0; i < theStore.length; ++i) {
      if (isAt(theStore, i, obj)) {
        return i;
      }
    }
    return -1;
  }

  return {
    // -1 where the store does not hold the object.
    find: function (theStore, obj) {
      if (store !== theStore || known > theStore.length) {
        start(theStore);
      }
      if (!places) {
        return walk(theStore, obj);
      }
      for (; known < store.length; ++known) {
        learnEntry(known);
      }
      var place = places.get(obj);
      if (place === undefined) {
        return -1;
      }
      if (isAt(theStore, place, obj)) {
        return place;
      }
      // The entry was overwritten, so that other places may be wrong, too.
      start(theStore);
      return walk(theStore, obj);
    }
  };
})();

function __corvex__idForObject(obj) {
  var store = top.__corvex__globalObjectRefStore;
  var index = __corvex__refPlaces.find(store, obj);
  if (index === -1) {
    index = store.length;
    store[index] = obj;
  }
  return "top.__corvex__globalObjectRefStore[" + index + "]";
}

function __corvex__objectOfReference(reference) {
  var place = /^top\.__corvex__globalObjectRefStore\[(\d+)\]$/.exec(reference);
  return place ? top.__corvex__globalObjectRefStore[place[1]] : __corvex__valueAtPath(window, reference);
}
