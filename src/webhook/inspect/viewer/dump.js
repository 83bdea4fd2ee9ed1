// The viewer of a dump: the picture, the tree and what is known of the chosen object, each following the others.
(function () {
  'use strict';

  const ROW_HEIGHT = 22;
  const data = JSON.parse(document.getElementById('data').textContent);
  // Each object: depth, class, name, qualified name, matches, [x, y, width, height] or null, properties, context.
  const objects = data.objects.map(function (fields, index) {
    return {
      index: index, depth: fields[0], className: fields[1], name: fields[2], qualifiedName: fields[3],
      matches: fields[4], bounds: fields[5], properties: fields[6], context: fields[7] || '',
      parent: -1, hasChildren: false, isOpen: fields[0] < 4
    };
  });
  const ancestors = [];
  objects.forEach(function (object) {
    ancestors.length = object.depth;
    if (object.depth > 0) {
      object.parent = ancestors[object.depth - 1].index;
      objects[object.parent].hasChildren = true;
    }
    ancestors[object.depth] = object;
  });

  const byId = function (id) { return document.getElementById(id); };
  const tree = byId('tree');
  const rows = byId('rows');
  const picture = byId('picture');
  const image = picture.querySelector('img');
  const field = document.querySelector('#search input');
  const hitCount = document.querySelector('#search output');
  let shown = [];
  let chosen = -1;
  let hits = [];

  function listShown() {
    shown = [];
    let closedBelow = Infinity;
    objects.forEach(function (object) {
      if (object.depth <= closedBelow) {
        shown.push(object);
        closedBelow = object.isOpen ? Infinity : object.depth;
      }
    });
    rows.style.height = shown.length * ROW_HEIGHT + 'px';
  }

  function textElement(tag, className, text) {
    const element = document.createElement(tag);
    element.className = className;
    element.textContent = text;
    return element;
  }

  function rowOf(object, place) {
    const row = document.createElement('div');
    row.className = 'row' + (object.bounds ? '' : ' unseen');
    row.id = 'row' + object.index;
    row.style.top = place * ROW_HEIGHT + 'px';
    row.style.paddingLeft = 4 + object.depth * 14 + 'px';
    row.dataset.index = object.index;
    row.setAttribute('role', 'treeitem');
    row.setAttribute('aria-level', object.depth + 1);
    row.setAttribute('aria-selected', object.index === chosen);
    if (object.hasChildren) {
      row.setAttribute('aria-expanded', object.isOpen);
    }
    row.append(
      textElement('span', 'toggle', object.hasChildren ? (object.isOpen ? '▾' : '▸') : ''),
      textElement('span', 'name', object.context || object.name),
      textElement('span', 'class', object.className));
    return row;
  }

  // Only what can be seen: trees have thousands of objects.
  function drawRows() {
    const first = Math.max(0, Math.floor(tree.scrollTop / ROW_HEIGHT) - 10);
    const last = Math.min(shown.length, Math.ceil((tree.scrollTop + tree.clientHeight) / ROW_HEIGHT) + 10);
    const drawn = [];
    for (let place = first; place < last; ++place) {
      drawn.push(rowOf(shown[place], place));
    }
    rows.replaceChildren.apply(rows, drawn);
  }

  function frame(box, bounds) {
    box.hidden = !bounds || !data.picture;
    if (box.hidden) {
      return;
    }
    const scale = image.clientWidth / data.pictureWidth;
    ['left', 'top', 'width', 'height'].forEach(function (side, i) {
      box.style[side] = bounds[i] * scale + 'px';
    });
  }

  function addTerm(list, term, text) {
    list.append(textElement('dt', '', term), textElement('dd', '', text));
  }

  function copyText(text, button) {
    const done = function () { button.textContent = 'Copied'; };
    const area = document.createElement('textarea');
    area.value = text;
    document.body.append(area);
    area.select();
    // Files have no clipboard of their own in some browsers.
    if (document.execCommand('copy')) {
      done();
    } else if (navigator.clipboard) {
      navigator.clipboard.writeText(text).then(done, function () {});
    }
    area.remove();
    button.focus();
  }

  function drawDetails(object) {
    const details = byId('details');
    const list = document.createElement('dl');
    if (!object.qualifiedName) {
      details.replaceChildren(textElement('p', '', 'No name could be made for this object.'), list);
    } else {
      const button = textElement('button', '', 'Copy name');
      button.type = 'button';
      button.id = 'copy';
      button.addEventListener('click', function () { copyText(object.qualifiedName, button); });
      details.replaceChildren(
        textElement('code', '', object.qualifiedName), document.createTextNode(' '), button, list);
      addTerm(list, 'matches', object.matches ? String(object.matches) : 'not counted');
    }
    addTerm(list, 'class', object.className);
    if (object.context) {
      addTerm(list, 'context', object.context);
    }
    addTerm(list, 'place', object.bounds ?
      object.bounds.slice(0, 2).join(', ') + ' · ' + object.bounds.slice(2).join(' × ') : 'not shown');
    object.properties.forEach(function (property) { addTerm(list, property[0], property[1]); });
  }

  function scrollToRow(index) {
    const place = shown.findIndex(function (object) { return object.index === index; });
    const top = place * ROW_HEIGHT;
    if (top < tree.scrollTop) {
      tree.scrollTop = top;
    } else if (top + ROW_HEIGHT > tree.scrollTop + tree.clientHeight) {
      tree.scrollTop = top + ROW_HEIGHT - tree.clientHeight;
    }
  }

  function choose(index, scrollsPicture) {
    chosen = index;
    const object = objects[index];
    for (let up = object.parent; up >= 0; up = objects[up].parent) {
      objects[up].isOpen = true;
    }
    listShown();
    scrollToRow(index);
    drawRows();
    tree.setAttribute('aria-activedescendant', 'row' + index);
    frame(byId('chosen'), object.bounds);
    if (scrollsPicture && !byId('chosen').hidden) {
      byId('chosen').scrollIntoView({ block: 'nearest', inline: 'nearest' });
    }
    drawDetails(object);
  }

  // The smallest object there, and of several the innermost.
  function objectAt(event) {
    const box = image.getBoundingClientRect();
    const scale = data.pictureWidth / box.width;
    const x = (event.clientX - box.left) * scale;
    const y = (event.clientY - box.top) * scale;
    let best = null;
    objects.forEach(function (object) {
      const b = object.bounds;
      if (b && x >= b[0] && y >= b[1] && x < b[0] + b[2] && y < b[1] + b[3] &&
          (!best || b[2] * b[3] <= best.bounds[2] * best.bounds[3])) {
        best = object;
      }
    });
    return best;
  }

  function setOpen(object, isOpen) {
    object.isOpen = isOpen;
    listShown();
    drawRows();
  }

  const keys = {
    ArrowDown: function (place) { return shown[Math.min(place + 1, shown.length - 1)]; },
    ArrowUp: function (place) { return shown[Math.max(place - 1, 0)]; },
    Home: function () { return shown[0]; },
    End: function () { return shown[shown.length - 1]; },
    ArrowRight: function (place, object) {
      if (object.hasChildren && !object.isOpen) {
        setOpen(object, true);
        return object;
      }
      return object.hasChildren ? shown[place + 1] : object;
    },
    ArrowLeft: function (place, object) {
      if (object.hasChildren && object.isOpen) {
        setOpen(object, false);
        return object;
      }
      return object.parent >= 0 ? objects[object.parent] : object;
    }
  };

  function matchesText(object, text) {
    return [object.name, object.className, object.qualifiedName, object.context].concat(
      object.properties.map(function (property) { return property.join('='); })).some(function (part) {
      return part.toLowerCase().indexOf(text) >= 0;
    });
  }

  function isBelow(object, ancestor) {
    let up = object;
    while (up && up.depth > ancestor.depth) {
      up = objects[up.parent];
    }
    return up === ancestor;
  }

  function search() {
    const text = field.value.trim().toLowerCase();
    const all = text ? objects.filter(function (object) { return matchesText(object, text); }) : [];
    // An object holds the texts of those below it, and who looks for a text means the innermost one.
    const isAround = function (object, place) { return place + 1 < all.length && isBelow(all[place + 1], object); };
    hits = all.filter(function (object, place) { return !isAround(object, place); }).concat(all.filter(isAround));
    if (hits.length) {
      choose(hits[0].index, true);
    }
    showHit();
  }

  function showHit() {
    const place = hits.findIndex(function (object) { return object.index === chosen; });
    hitCount.textContent = field.value.trim() === '' ? '' :
      hits.length ? (place + 1 || '–') + ' of ' + hits.length : 'nothing';
  }

  function step(by) {
    if (hits.length) {
      const place = hits.findIndex(function (object) { return object.index === chosen; });
      choose(hits[(place + by + hits.length) % hits.length].index, true);
      showHit();
    }
  }

  document.title = data.title || data.url;
  byId('title').textContent = document.title;
  byId('url').textContent = data.url + ' · ' + objects.length + ' objects · ' + data.time;
  byId('problem').textContent = data.problem;
  byId('problem').hidden = !data.problem;
  if (data.picture) {
    image.src = data.picture;
    image.alt = 'Picture of ' + (data.title || data.url);
  }
  tree.addEventListener('scroll', drawRows);
  tree.addEventListener('keydown', function (event) {
    const place = shown.findIndex(function (object) { return object.index === chosen; });
    if (keys[event.key] && place >= 0) {
      event.preventDefault();
      choose(keys[event.key](place, shown[place]).index, true);
    }
  });
  tree.addEventListener('click', function (event) {
    const row = event.target.closest('.row');
    if (row) {
      const object = objects[row.dataset.index];
      if (event.target.className === 'toggle' && object.hasChildren) {
        object.isOpen = !object.isOpen;
      }
      choose(object.index, true);
    }
  });
  tree.addEventListener('mousemove', function (event) {
    const row = event.target.closest('.row');
    frame(byId('hovered'), row && objects[row.dataset.index].bounds);
  });
  tree.addEventListener('mouseleave', function () { frame(byId('hovered'), null); });
  picture.addEventListener('mousemove', function (event) {
    const object = objectAt(event);
    frame(byId('hovered'), object && object.bounds);
  });
  picture.addEventListener('mouseleave', function () { frame(byId('hovered'), null); });
  picture.addEventListener('click', function (event) {
    const object = objectAt(event);
    if (object) {
      choose(object.index, false);
    }
  });
  field.addEventListener('input', search);
  field.addEventListener('keydown', function (event) {
    if (event.key === 'Enter') {
      step(event.shiftKey ? -1 : 1);
    }
  });
  byId('previous').addEventListener('click', function () { step(-1); });
  byId('next').addEventListener('click', function () { step(1); });
  window.addEventListener('resize', function () {
    drawRows();
    if (chosen >= 0) {
      frame(byId('chosen'), objects[chosen].bounds);
    }
  });
  listShown();
  if (objects.length) {
    image.addEventListener('load', function () { choose(Math.max(chosen, 0), false); });
    choose(0, false);
  }
})();
