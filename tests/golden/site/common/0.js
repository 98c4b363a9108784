// What the pages of the site share: the frames, the list, and the pages of titles. Pages that are opened from a disk may
// not look into each other, so that they send messages; data comes in scripts, since files may not be read.

/** Sorts the body of a table by a column; a click on a column's heading does the same, a second one turns the order. */
function SortableTable(table, types) {
  this.table = table;
  this.types = types;
  this.rows = Array.prototype.slice.call(table.tBodies[0].rows);
  this.column = -1;
  this.descending = false;
  this.onsort = null;
  var self = this, heads = table.tHead.rows[0].cells;
  for (var i = 0; i < heads.length; i++) { addHeading(i); }
  function addHeading(column) {
    var button = document.createElement('button'), mark = document.createElement('img');
    button.type = 'button';
    while (heads[column].firstChild) { button.appendChild(heads[column].firstChild); }
    mark.src = 'Images/blank.png';
    mark.alt = '';
    button.appendChild(mark);
    button.onclick = function () { self.sort(column); site.remember(); };
    heads[column].appendChild(button);
  }
}

/** Without an order, ascending; where the table is in that order already, descending. */
SortableTable.prototype.sort = function (column, descending, type) {
  var turned = this.column === column;
  if (descending === undefined || descending === null) { descending = turned && !this.descending; }
  if (turned) {
    if (descending !== this.descending) { this.rows.reverse(); }
  } else {
    this.rows = site.sorted(this.rows, column, type || this.types[column]);
    if (descending) { this.rows.reverse(); }
  }
  this.column = column;
  this.descending = Boolean(descending);
  this.mark();
  if (this.onsort) { this.onsort(this.table); }
};

SortableTable.prototype.mark = function () {
  var heads = this.table.tHead.rows[0].cells;
  for (var i = 0; i < heads.length; i++) {
    var sorted = i === this.column;
    heads[i].getElementsByTagName('img')[0].src =
      'Images/' + (!sorted ? 'blank' : this.descending ? 'downsimple' : 'upsimple') + '.png';
    if (sorted) { heads[i].setAttribute('aria-sort', this.descending ? 'descending' : 'ascending'); }
    else { heads[i].removeAttribute('aria-sort'); }
  }
};

/** Shows the rows of a table that the search leaves, in their order, every other one in another colour. */
function colourTables(table) { site.showRows(table); }

/** Shows the list of a collection. */
function changetab(number) { site.showTab(number, true); }

/** Opens a link of the list beside it; false where that was done here, so that the browser does nothing. */
function jslink(link) {
  if (window.parent === window) { return true; }
  site.send(window.parent, { open: link.getAttribute('href') });
  return false;
}

/** Lists the titles of a person. */
function displayCrossLink(person) {
  var id = person.replace(/^person-/, '');
  if (site.isList) { site.showPerson(id); }
  else if (window.parent !== window) { site.send(window.parent, { person: id }); }
  else { location.href = '../index2.html#person=' + encodeURIComponent(id); }
}

var site = (function () {
  var tabCount = Number('5') || 0;

  // Sorts each table anew in the direction that it has; for pages that show the list in a window of their own.
  function resort(window) {
        if (window.parent.document.getElementById('Ownedlist').getElementsByTagName('img')[1].getAttribute('src').indexOf('Images/blank.png') > -1) {
          window.parent.Owned.sort(0);
          window.parent.Owned.sort(0);
        }
        else {
          window.parent.Owned.sort(1);
          window.parent.Owned.sort(1);
        }
        if (window.parent.document.getElementById('WishListlist').getElementsByTagName('img')[1].getAttribute('src').indexOf('Images/blank.png') > -1) {
          window.parent.WishList.sort(0);
          window.parent.WishList.sort(0);
        }
        else {
          window.parent.WishList.sort(1);
          window.parent.WishList.sort(1);
        }
        if (window.parent.document.getElementById('unsortedlist').getElementsByTagName('img')[1].getAttribute('src').indexOf('Images/blank.png') > -1) {
          window.parent.unsorted.sort(0);
          window.parent.unsorted.sort(0);
        }
        else {
          window.parent.unsorted.sort(1);
          window.parent.unsorted.sort(1);
        }
        if (window.parent.document.getElementById('Orderedlist').getElementsByTagName('img')[1].getAttribute('src').indexOf('Images/blank.png') > -1) {
          window.parent.Ordered.sort(0);
          window.parent.Ordered.sort(0);
        }
        else {
          window.parent.Ordered.sort(1);
          window.parent.Ordered.sort(1);
        }
        if (window.parent.document.getElementById('Sold_Gonelist').getElementsByTagName('img')[1].getAttribute('src').indexOf('Images/blank.png') > -1) {
          window.parent.Sold_Gone.sort(0);
          window.parent.Sold_Gone.sort(0);
        }
        else {
          window.parent.Sold_Gone.sort(1);
          window.parent.Sold_Gone.sort(1);
        }

  }

  // Messages say who they are from, for a skin's scripts may send others.
  function send(target, message) {
    message.ostrand = true;
    target.postMessage(message, '*');
  }
  function receive(from, handle) {
    window.addEventListener('message', function (event) {
      if (event.data && event.data.ostrand === true && from(event.source)) { handle(event.data, event.source); }
    });
  }
  function byId(id) { return document.getElementById(id); }
  function textOf(row, column) {
    var cell = row.cells[column];
    // Titles sort by the hidden column; the cell of a box set holds the titles in it, too.
    if (column === 0) { return row.cells[2] ? row.cells[2].textContent : cell.textContent; }
    return cell ? cell.textContent : '';
  }
  function sorted(rows, column, type) {
    var collator = new Intl.Collator(undefined, { sensitivity: 'base' }), number = type === 'Number';
    var keys = rows.map(function (row, place) {
      var text = textOf(row, column);
      return { row: row, place: place, text: text, key: number ? parseFloat(text) || 0 : text };
    });
    keys.sort(function (a, b) {
      return (number ? a.key - b.key : collator.compare(a.key, b.key)) || a.place - b.place;
    });
    return keys.map(function (key) { return key.row; });
  }

  // A page of a title tells the frames around it what it is.
  if (window.parent !== window && /\/(Profiles|Episodes)\/[^\/]*$/.test(location.pathname)) {
    window.addEventListener('load', function () {
      send(window.parent, { page: location.pathname.replace(/^.*\/([^\/]+\/[^\/]+)$/, '$1'), title: document.title });
    });
  }

  return { tabCount: tabCount, resort: resort, send: send, receive: receive, byId: byId, sorted: sorted, isList: false };
})();

// The frames: the list on one side, a page on the other. The address holds what is shown.
site.frames = function (tabs) {
  var list = site.byId('list'), page = site.byId('profiles'), back = site.byId('showList'), shown = '', ready = false;

  function isPage(path) { return /^(\.\/)?(Profiles|Episodes)\/[^\/:]+\.html$/.test(path); }
  function pane(name) {
    document.body.setAttribute('data-pane', name);
    back.hidden = name === 'list';
  }
  function open(path) {
    shown = path.replace(/^\.\//, '');
    page.contentWindow.location.replace(shown);
    pane('page');
    current();
  }
  function current() { if (ready) { site.send(list.contentWindow, { current: shown }); } }
  function follow() {
    var hash = location.hash.slice(1), person = /^person=(.*)$/.exec(hash), tab = /^tab=(.*)$/.exec(hash);
    if (person || tab) {
      if (!ready) { return; }
      pane('list');
      if (person) { site.send(list.contentWindow, { person: decode(person[1]) }); }
      else if (tabs.indexOf(decode(tab[1])) >= 0) { site.send(list.contentWindow, { tab: tabs.indexOf(decode(tab[1])) }); }
    } else if (isPage(hash)) {
      if (hash !== shown) { open(hash); }
    } else {
      pane('list');
    }
  }
  function decode(text) {
    try { return decodeURIComponent(text); } catch (error) { return text; }
  }

  site.receive(function (source) { return source === list.contentWindow; }, function (message) {
    if (message.ready) { ready = true; follow(); current(); }
    if (typeof message.open === 'string' && isPage(message.open)) {
      location.hash = message.open.replace(/^\.\//, '');
      if (document.body.getAttribute('data-pane') === 'list') { follow(); pane('page'); }
    }
  });
  site.receive(function (source) { return source === page.contentWindow; }, function (message) {
    if (typeof message.person === 'string') {
      location.hash = 'person=' + encodeURIComponent(message.person);
    }
    if (typeof message.page === 'string' && isPage(message.page)) {
      if (typeof message.title === 'string' && message.title) { document.title = message.title; }
      if (message.page !== shown) {
        shown = message.page; // a link in the page led here
        location.replace('#' + shown);
      }
      current();
    }
  });
  window.addEventListener('hashchange', follow);
  back.onclick = function () { pane('list'); list.focus(); };
  follow();
};

// The rows of a table: those near to what is seen are in the page, blank rows keep the place of the others. A list of
// ten thousand titles is as quick as one of a hundred.
site.makeView = function (table, prepare) {
  var kMargin = 40, body = table.tBodies[0], above = blank(), below = blank(), shown = [], from = 0, to = 0, height = 0;

  function blank() {
    var row = document.createElement('tr');
    row.className = 'space';
    row.setAttribute('aria-hidden', 'true');
    row.appendChild(document.createElement('td')).colSpan = 2; // the third one is hidden
    return row;
  }
  function insert(first, last, before) {
    var part = document.createDocumentFragment();
    for (var i = first; i < last; i++) {
      prepare(shown[i]);
      shown[i].className = i % 2 === 0 ? 'odd' : '';
      part.appendChild(shown[i]);
    }
    body.insertBefore(part, before);
  }
  function remove(first, last) {
    for (var i = first; i < last; i++) { if (shown[i].parentNode === body) { body.removeChild(shown[i]); } }
  }
  function keepPlace() {
    above.firstChild.style.height = from * height + 'px';
    below.firstChild.style.height = (shown.length - to) * height + 'px';
    above.hidden = from === 0;
    below.hidden = to === shown.length;
  }
  function top() { return body.getBoundingClientRect().top + window.scrollY; }
  function measure() {
    var count = Math.min(shown.length, 30), rows = body.rows;
    if (count && table.style.display !== 'none') {
      height = (rows[count].getBoundingClientRect().bottom - rows[1].getBoundingClientRect().top) / count || 30;
    }
  }
  function range() {
    var first = Math.floor((window.scrollY - top()) / height), last = first + Math.ceil(window.innerHeight / height);
    return [Math.max(0, Math.min(first - kMargin, shown.length)), Math.max(0, Math.min(last + kMargin, shown.length))];
  }
  /** Rows that stay are left alone, since one of them may be in use. */
  function draw() {
    if (!height || table.style.display === 'none') { return; }
    var next = range();
    if (Math.abs(next[0] - from) < kMargin / 2 && Math.abs(next[1] - to) < kMargin / 2 &&
        (next[0] > 0 || from === 0) && (next[1] < shown.length || to === shown.length)) { return; }
    if (next[0] >= to || next[1] <= from) {
      remove(from, to);
      insert(next[0], next[1], below);
    } else {
      remove(from, next[0]);
      remove(next[1], to);
      insert(next[0], from, above.nextSibling);
      insert(to, next[1], below);
    }
    from = next[0];
    to = next[1];
    keepPlace();
  }
  function all() {
    remove(from, to);
    insert(0, shown.length, below);
    from = 0;
    to = shown.length;
    keepPlace();
  }

  return {
    table: table,
    show: function (rows) {
      body.textContent = '';
      shown = rows;
      from = 0;
      to = Math.min(shown.length, 3 * kMargin);
      body.appendChild(above);
      body.appendChild(below);
      insert(from, to, below);
      measure();
      keepPlace();
      table.setAttribute('aria-rowcount', shown.length);
      draw();
    },
    draw: draw,
    all: all,
    /** Brings a row into the page and into sight. */
    reveal: function (row) {
      var place = shown.indexOf(row);
      if (place < 0) { return; }
      if (place < from || place >= to) { window.scrollTo(0, top() + place * height - window.innerHeight / 3); }
      draw();
    }
  };
};

// The list: tabs, search, covers, the titles of a person.
site.list = function (sortByTitles) {
  var tables = document.querySelectorAll('.listing > table'), tabs = site.byId('tabs').children, search = site.byId('search');
  var found = site.byId('found'), people = site.byId('people'), active = -1, titles = null, names = {}, timer = 0;
  var currentLink = null, waiting = null, covers = null, views = [];
  site.isList = true;

  // What is remembered belongs to this copy of the site.
  var store = 'ostrand ' + location.pathname;
  function recall() {
    try { return JSON.parse(localStorage.getItem(store)) || {}; } catch (error) { return {}; }
  }
  function objectOf(table) { return table && window[table.id.replace(/list$/, '')]; }
  site.remember = function () {
    var table = objectOf(tables[active]);
    try {
      localStorage.setItem(store, JSON.stringify({
        tab: active, column: table ? table.column : -1, descending: Boolean(table && table.descending)
      }));
    } catch (error) { /* a browser that keeps nothing */ }
  };

  // Tabs.
  site.showTab = function (number, byHand) {
    if (number < 0 || number >= Math.min(site.tabCount, tables.length)) { return; }
    for (var i = 0; i < tables.length; i++) {
      tables[i].style.display = i === number ? '' : 'none';
      if (tabs[i]) {
        tabs[i].setAttribute('aria-selected', i === number);
        tabs[i].tabIndex = i === number ? 0 : -1;
      }
    }
    active = number;
    if (byHand) { people.hidden = true; site.remember(); }
    filter();
  };
  function makeTabs() {
    site.byId('tabs').setAttribute('role', 'tablist');
    for (var i = 0; i < tabs.length; i++) {
      tabs[i].setAttribute('role', 'tab');
      if (tables[i]) { tabs[i].setAttribute('aria-controls', tables[i].id); }
    }
    site.byId('tabs').addEventListener('keydown', function (event) {
      var step = { ArrowRight: 1, ArrowLeft: -1, Home: -tabs.length, End: tabs.length }[event.key];
      if (step) {
        var next = Math.max(0, Math.min(tabs.length - 1, active + step));
        event.preventDefault();
        changetab(next);
        tabs[next].focus();
      } else if (event.key === 'Enter' || event.key === ' ') {
        event.preventDefault();
        changetab(active);
      }
    });
  }

  // Search in titles: the texts of a table are folded once.
  function fold(text) { return text.normalize('NFD').replace(/[\u0300-\u036f]/g, '').toLowerCase(); }
  function foldedText(row) {
    if (row.folded === undefined) { row.folded = fold(row.cells[0].textContent + ' ' + row.cells[1].textContent); }
    return row.folded;
  }
  site.showRows = function (table) {
    var number = Array.prototype.indexOf.call(tables, table), words = fold(search.value).split(/\s+/).filter(Boolean);
    if (number !== active || !views[number]) { return; } // shown once its tab is
    var rows = objectOf(table).rows.filter(function (row) {
      return words.every(function (word) { return foldedText(row).indexOf(word) >= 0; });
    });
    found.textContent = rows.length + (rows.length === 1 ? ' title' : ' titles');
    views[number].show(rows);
  };
  function filter() { colourTables(tables[active]); }
  function onSearch() {
    filter();
    showPeople();
  }

  // People come in scripts of their own, one for each beginning of a word, loaded when they are asked for.
  function load(source, done) {
    var script = document.createElement('script');
    script.src = source;
    script.onload = script.onerror = function () { script.remove(); if (done) { done(); } };
    document.head.appendChild(script);
  }
  function wordsOf(text) { return fold(text).split(/[^\p{L}\p{N}]+/u).filter(Boolean); }
  window.crossLinkNames = function (beginning, entries) {
    names[beginning] = entries.map(function (entry) {
      return { name: entry[0], id: entry[1], count: entry[2], words: ' ' + wordsOf(entry[0]).join(' ') };
    });
  };
  function showPeople() {
    var words = wordsOf(search.value), long = words.filter(function (word) { return word.length >= 2 || word > '\u2e7f'; });
    if (!long.length) { people.hidden = true; return; }
    var beginning = long[0].slice(0, 2);
    if (!names[beginning]) {
      names[beginning] = [];
      load('crosslink/names-' + part(beginning) + '.js', showPeople);
      return;
    }
    var matching = names[beginning].filter(function (person) {
      return words.every(function (word) { return person.words.indexOf(' ' + word) >= 0; });
    }).slice(0, 30);
    clear(people);
    people.hidden = matching.length === 0;
    if (people.hidden) { return; }
    add(people, 'h2', 'People');
    var list = add(people, 'ul');
    matching.forEach(function (person) {
      var button = add(add(list, 'li'), 'button', person.name);
      button.type = 'button';
      add(button, 'span', ' ' + person.count);
      button.onclick = function () { site.showPerson(person.id); };
    });
  }
  function clear(node) { while (node.firstChild) { node.removeChild(node.firstChild); } }
  function add(parent, name, text) {
    var node = document.createElement(name);
    if (text !== undefined) { node.textContent = text; }
    parent.appendChild(node);
    return node;
  }

  // The titles of a person.
  function part(id) {
    return id.slice(0, 2).replace(/[^a-z0-9_]/g, function (c) { return 'u' + ('000' + c.charCodeAt(0).toString(16)).slice(-4); });
  }
  site.showPerson = function (id) {
    waiting = { id: id, name: '', keys: [] };
    load('crosslink/load-' + part(id) + '.js', function () { if (waiting && waiting.id === id) { showTitlesOf(waiting); } });
  };
  window.crossLinks = function (entries) {
    entries.forEach(function (entry) {
      if (waiting && entry[0] === waiting.id) {
        waiting.name = waiting.name || entry[1];
        waiting.keys = waiting.keys.concat(entry.slice(2));
      }
    });
  };
  function linkedTitles() {
    if (!titles) {
      titles = {};
      Array.prototype.forEach.call(tables, function (table) {
        objectOf(table).rows.forEach(function (row) {
          Array.prototype.forEach.call(row.querySelectorAll('a'), function (link) {
            var key = keyOf(link.getAttribute('href'));
            if (!titles[key]) { titles[key] = { link: link, row: row, table: table }; }
          });
        });
      });
    }
    return titles;
  }
  function keyOf(path) {
    var name = /([^\/]+)\.html$/.exec(path);
    try { return name ? decodeURIComponent(name[1]) : ''; } catch (error) { return name[1]; }
  }
  function showTitlesOf(person) {
    var seen = {}, links = linkedTitles(), entries = [];
    person.keys.forEach(function (key) {
      if (links[key] && !seen[key]) { seen[key] = true; entries.push({ key: key, link: links[key].link }); }
    });
    clear(people);
    people.hidden = false;
    var heading = add(people, 'h2', person.name || 'This person');
    heading.tabIndex = -1;
    var close = add(people, 'button', '\u00d7');
    close.type = 'button';
    close.className = 'close';
    close.setAttribute('aria-label', 'Close the list of this person');
    close.onclick = function () { people.hidden = true; search.focus(); };
    if (!entries.length) { add(people, 'p', 'No title of this collection.'); }
    var list = add(people, 'ul');
    list.className = 'titles';
    entries.forEach(function (entry) {
      var link = entry.link.cloneNode(true), item = add(list, 'li'), cover = covers && covers[entry.key] && covers[entry.key][0];
      if (cover) { thumbnail(item, cover); }
      item.appendChild(link);
      if (covers && covers[entry.key] && covers[entry.key][1]) { add(item, 'span', ' ' + covers[entry.key][1]); }
    });
    window.scrollTo(0, 0);
    heading.focus();
  }

  // Covers come with the rows that are near to what is seen, and box sets learn to fold.
  function thumbnail(parent, source) {
    var image = document.createElement('img');
    image.className = 'thumb';
    image.alt = '';
    image.loading = 'lazy';
    image.src = source;
    parent.insertBefore(image, parent.firstChild);
  }
  window.siteTitles = function (entries) {
    covers = entries;
    for (var key in covers) { if (covers[key][0]) { document.body.classList.add('covers'); break; } }
    if (active >= 0) { filter(); }
  };
  function prepare(row) {
    var link = row.cells[0].querySelector('a'), cover = link && covers && covers[keyOf(link.getAttribute('href'))];
    if (cover && cover[0] && !row.hasCover) {
      row.hasCover = true;
      thumbnail(row.cells[0], cover[0]);
    }
    if (!row.folds) {
      row.folds = true;
      Array.prototype.forEach.call(row.querySelectorAll('.boxset'), addTwisty);
    }
  }
  function addTwisty(set) {
    var inner = set.querySelector('ul');
    if (!inner) { return; }
    var button = document.createElement('button'), image = add(button, 'img');
    button.type = 'button';
    button.className = 'twisty';
    image.alt = '';
    function show(open) {
      inner.hidden = !open;
      image.src = 'Images/twisty-' + (open ? 'open' : 'clsd') + '.png';
      button.setAttribute('aria-expanded', open);
      button.setAttribute('aria-label', open ? 'Hide the titles of this box set' : 'Show the titles of this box set');
    }
    button.onclick = function () { show(inner.hidden); };
    show(false);
    set.insertBefore(button, set.querySelector('a'));
  }

  // The title that is shown beside the list.
  function markCurrent(path) {
    var entry = linkedTitles()[keyOf(path)];
    if (currentLink) { currentLink.removeAttribute('aria-current'); }
    currentLink = entry ? entry.link : null;
    if (!entry) { return; }
    currentLink.setAttribute('aria-current', 'page');
    var number = Array.prototype.indexOf.call(tables, entry.table);
    if (number !== active) { site.showTab(number, true); }
    views[number].reveal(entry.row);
    prepare(entry.row);
    for (var set = currentLink.closest('ul'); set; set = set.parentNode.closest('ul')) {
      if (set.hidden) { set.parentNode.querySelector('.twisty').click(); }
    }
    currentLink.scrollIntoView({ block: 'nearest' });
  }

  site.byId('reset').onclick = function () {
    search.value = '';
    people.hidden = true;
    sortByTitles();
    filter();
    site.remember();
  };
  search.form.addEventListener('submit', function (event) { event.preventDefault(); });
  search.addEventListener('input', function () {
    clearTimeout(timer);
    timer = setTimeout(onSearch, 40);
  });
  document.addEventListener('keydown', function (event) {
    if (event.key === '/' && document.activeElement !== search) { event.preventDefault(); search.focus(); }
    if (event.key === 'Escape' && document.activeElement === search) { search.value = ''; onSearch(); }
  });

  function drawActive() { if (views[active]) { views[active].draw(); } }
  window.addEventListener('scroll', drawActive, { passive: true });
  window.addEventListener('resize', drawActive);
  window.addEventListener('beforeprint', function () { if (views[active]) { views[active].all(); } });
  window.addEventListener('afterprint', filter);

  makeTabs();
  views = Array.prototype.map.call(tables, function (table) { return site.makeView(table, prepare); });
  var before = recall();
  site.showTab(before.tab >= 0 && before.tab < tables.length ? before.tab : 0, false);
  if (before.column >= 0 && objectOf(tables[active])) { objectOf(tables[active]).sort(before.column, before.descending); }
  if (window.parent !== window) {
    site.receive(function (source) { return source === window.parent; }, function (message) {
      if (typeof message.person === 'string') { site.showPerson(message.person); }
      if (typeof message.current === 'string') { markCurrent(message.current); }
      if (typeof message.tab === 'number') { changetab(message.tab); }
    });
    site.send(window.parent, { ready: true });
  }
};
