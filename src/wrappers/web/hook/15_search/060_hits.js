// Gives: __corvex__keptHits, all hits of a name below a container, read once while the page stays.
// Needs: matching, search/kept, search/name, search/elementtest, search/properties.

function __corvex__noHitsYet() {
  return Object.create(null);
}

// In the order of the search, whatever the name's occurrence: the names of like elements differ in that alone. undefined
// where a search must not look further than the hit that it wants: it reports what fails, extensions take part, the page
// may change, or looking on raises an error.
function __corvex__keptHits(container, nm) {
  if (!__corvex__keptAnswers || __corvex__reportsProperties() || __corvex__extensionsMatch()) {
    return undefined;
  }
  var hitsOf = __corvex__kept(__corvex__noHitsYet, container);
  var name = nm.replace(/ occurrence='\d+'\}$/, "}");
  if (!(name in hitsOf)) {
    var hits = [];
    try {
      __corvex__searchByProps(container, __corvex__propertyMap(nm), nm, function (hit) {
        hits.push(hit);
        return false;
      });
    } catch (e) {
      hits = undefined;
    }
    hitsOf[name] = hits;
  }
  return hitsOf[name];
}
