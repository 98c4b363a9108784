// The view for phones: the list that the address names is shown, the others wait.
(function () {
  var lists = document.querySelectorAll('main > ul'), back = document.getElementById('backButton');
  var home = document.getElementById('homeButton'), title = document.getElementById('pageTitle');
  var find = document.getElementById('find'), text = document.getElementById('findText');
  var results = document.getElementById('foundTitles'), first = null, places = {}, titles = null, timer = 0;

  document.documentElement.className = 'scripted';
  for (var i = 0; i < lists.length; i++) { if (lists[i].getAttribute('selected')) { first = lists[i]; } }
  if (home) { document.querySelector('.toolbar').appendChild(home); }
  find.hidden = false;

  function decode(text) {
    try { return decodeURIComponent(text); } catch (error) { return text; }
  }
  // A box set's list leads back to the list that it stands in.
  function parentOf(list) {
    if (list === first) { return null; }
    var links = document.querySelectorAll('main li > a[href^="#"]');
    for (var i = 0; i < links.length; i++) {
      if (decode(links[i].getAttribute('href').slice(1)) === list.id) { return links[i].parentNode.parentNode; }
    }
    return first;
  }
  function show(list) {
    for (var i = 0; i < lists.length; i++) {
      if (lists[i].className === 'shown') { places[lists[i].id] = window.scrollY; }
      lists[i].className = lists[i] === list ? 'shown' : '';
    }
    var parent = parentOf(list);
    title.textContent = list.title;
    document.title = list.title;
    back.hidden = !parent;
    if (parent) { back.href = '#' + parent.id; back.textContent = parent.title; }
    if (home) { home.hidden = !parent || parent === first; }
    window.scrollTo(0, places[list.id] || 0);
  }
  function follow() {
    var list = document.getElementById(decode(location.hash.slice(1)));
    text.value = '';
    show(list && list.parentNode.nodeName === 'MAIN' && list.nodeName === 'UL' ? list : first || lists[0]);
  }

  function fold(text) { return text.normalize('NFD').replace(/[\u0300-\u036f]/g, '').toLowerCase(); }
  function allTitles() {
    if (!titles) {
      var seen = {};
      titles = [];
      Array.prototype.forEach.call(document.querySelectorAll('main li > a'), function (link) {
        var target = link.getAttribute('href');
        if (target.charAt(0) !== '#' && !seen[target]) {
          seen[target] = true;
          titles.push({ target: target, title: link.textContent, text: fold(link.textContent) });
        }
      });
    }
    return titles;
  }
  function search() {
    var words = fold(text.value).split(/\s+/).filter(Boolean), count = 0;
    if (!words.length) { follow(); return; }
    while (results.firstChild) { results.removeChild(results.firstChild); }
    allTitles().every(function (entry) {
      if (words.every(function (word) { return entry.text.indexOf(word) >= 0; })) {
        var link = document.createElement('a');
        link.href = entry.target;
        link.textContent = entry.title;
        results.appendChild(document.createElement('li')).appendChild(link);
        count++;
      }
      return count < 200;
    });
    var value = text.value;
    show(results);
    text.value = value;
  }
  find.addEventListener('submit', function (event) { event.preventDefault(); text.blur(); });
  text.addEventListener('input', function () { clearTimeout(timer); timer = setTimeout(search, 60); });
  window.addEventListener('hashchange', follow);
  if (lists.length) { follow(); }
})();
