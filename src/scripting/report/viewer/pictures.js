// Gives: figureOf, thumbnailOf and showMark, for pictures of pages and their object trees.
// Needs: elements.js.

function addressOf(picture) {
  return 'data:' + picture.mimeType + ';base64,' + picture.bytes;
}

function showMark(frame) {
  const spot = frame.querySelector('.spot');
  if (spot && frame.clientHeight) {
    frame.scrollTop = Math.max(0, spot.offsetTop - (frame.clientHeight - spot.offsetHeight) / 2);
  }
}

function frameOf(picture) {
  const image = make('img');
  const canvas = make('div', 'canvas', image);
  const frame = make('div', 'frame', canvas);
  frame.tabIndex = 0;
  frame.setAttribute('role', 'group');
  frame.setAttribute('aria-label', 'Picture of the page');
  image.alt = 'The page when this failed';
  image.addEventListener('load', function () { showMark(frame); });
  image.src = addressOf(picture);
  image.style.width = picture.width + 'px';
  const marked = picture.marked;
  if (marked[2] > 0 && marked[3] > 0) {
    const spot = make('div', 'spot');
    ['left', 'top', 'width', 'height'].forEach(function (side, i) {
      spot.style[side] = 100 * marked[i] / (i % 2 ? picture.height : picture.width) + '%';
    });
    canvas.append(spot);
  }
  return frame;
}

function treePage(figure) {
  const data = JSON.parse(figure.tree);
  data.picture = addressOf(figure.picture);
  data.pictureWidth = figure.picture.width;
  const viewer = JSON.parse(byId('tree-viewer').textContent).page;
  return viewer.replace('%DATA%', function () { return JSON.stringify(data).replace(/</g, '\\u003c'); });
}

function treeButton(figure, box) {
  const button = make('button', 'show-tree', 'Show the objects of the page');
  let frame = null;
  button.type = 'button';
  button.setAttribute('aria-expanded', 'false');
  button.addEventListener('click', function () {
    if (!frame) {
      frame = make('iframe', 'tree');
      frame.title = 'Objects of the page';
      frame.hidden = true;
      frame.srcdoc = treePage(figure);
      box.append(frame);
    }
    frame.hidden = !frame.hidden;
    button.textContent = frame.hidden ? 'Show the objects of the page' : 'Hide the objects of the page';
    button.setAttribute('aria-expanded', String(!frame.hidden));
  });
  return button;
}

function figureOf(figure) {
  const picture = figure.picture;
  const box = make('figure');
  if (!picture.bytes) {
    box.append(make('p', 'missing', 'No picture of the page: ' + picture.missing));
    return box;
  }
  box.append(make('figcaption', '', picture.marked[2] > 0 ?
    'The page at this moment, with the object that this was about' : 'The page at this moment'), frameOf(picture));
  if (figure.tree) {
    box.append(treeButton(figure, box));
  } else if (figure.isTreeLeftOut) {
    box.append(make('p', 'missing', 'The report has the objects of the pages of other failures, and takes no more.'));
  }
  return box;
}

function thumbnailOf(picture) {
  const image = make('img');
  const button = make('button', 'thumbnail', image);
  button.type = 'button';
  button.title = 'Larger or smaller';
  button.setAttribute('aria-expanded', 'false');
  image.alt = 'The page after this step';
  image.src = addressOf(picture);
  button.addEventListener('click', function () {
    button.setAttribute('aria-expanded', String(button.classList.toggle('large')));
  });
  return button;
}
