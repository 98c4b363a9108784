#!/usr/bin/python3
"""Walks a written web site in Chromium as a visitor does, and looks for broken links.

Usage: check_site.py FOLDER [--links] [--times] [--pictures FOLDER]

Needs chromium-driver and python3-selenium. Ends with status 1 after telling what was wrong. With --links only
links are looked at; with --times the pauses of the list are measured by the browser's own clock; with --pictures what was
seen is kept.
"""
import html.parser
import json
import os
import sys
import tempfile
import urllib.parse
from pathlib import Path

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import WebDriverWait

FAULTS = []


def expect(holds, what):
    if not holds:
        FAULTS.append(what)


class Links(html.parser.HTMLParser):
    """The addresses and the ids in a page."""

    def __init__(self):
        super().__init__()
        self.targets = []
        self.ids = set()

    def handle_starttag(self, tag, attrs):
        for name, value in attrs:
            if name in ("href", "src") and value is not None and tag != "base":
                self.targets.append(value)
            if name in ("id", "name") and value:
                self.ids.add(value)


def check_links(folder):
    """Each local address of each page leads to a file of the site, each fragment to a place in it."""
    pages = {}
    for path in sorted(folder.rglob("*.html")):
        links = Links()
        links.feed(path.read_text("utf-8-sig"))
        pages[path.resolve()] = links
    exact = {str(path.resolve()) for path in folder.rglob("*")}
    count = 0
    for page, links in pages.items():
        for target in links.targets:
            parts = urllib.parse.urlsplit(target)
            if parts.scheme or parts.netloc or target.startswith("javascript:"):
                continue
            count += 1
            place = page if not parts.path else (page.parent / urllib.parse.unquote(parts.path)).resolve()
            if str(place) not in exact:
                FAULTS.append(f"broken link in {page.relative_to(folder.resolve())}: {target}")
            elif parts.fragment and place in pages and urllib.parse.unquote(parts.fragment) not in pages[place].ids:
                if not parts.fragment.startswith(("person=", "tab=")):
                    FAULTS.append(f"no such place in {page.relative_to(folder.resolve())}: {target}")
    print(f"{len(pages)} pages, {count} links")


def names_of_people(folder):
    names = set()
    for path in (folder / "crosslink").glob("names-*.js"):
        for line in path.read_text("utf-8-sig").splitlines():
            if line.startswith("["):
                names.add(json.loads(line.rstrip(","))[0])
    return sorted(names)


def keys_with_people(folder):
    """The titles whose pages name a person."""
    keys = set()
    for path in (folder / "crosslink").glob("load-*.js"):
        for line in path.read_text("utf-8-sig").splitlines():
            if line.startswith("["):
                keys.update(json.loads(line.rstrip(","))[2:])
    return keys


def start_browser(width, height, dark=False):
    options = webdriver.ChromeOptions()
    for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                     "--hide-scrollbars=false",
                     f"--window-size={width},{height}"):
        options.add_argument(argument)
    if dark:
        options.add_argument("--force-dark-mode")
        options.add_argument("--blink-settings=preferredColorScheme=0")
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    browser = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
    browser.set_page_load_timeout(60)
    return browser


class Visit:
    """A walk through the site in one window."""

    def __init__(self, folder, width, height, pictures=None, dark=False):
        self.base = folder.resolve().as_uri() + "/"
        self.pictures = pictures
        self.name = f"{width}{'-dark' if dark else ''}"
        self.browser = start_browser(width, height, dark)
        if width < 500:  # a window is never that narrow, what it shows can be
            self.browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                                         {"width": width, "height": height, "deviceScaleFactor": 2, "mobile": True})

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.tell_errors()
        self.browser.quit()

    def tell_errors(self):
        for entry in self.browser.get_log("browser"):
            if entry["level"] == "SEVERE":
                FAULTS.append(f"{self.name}: {entry['message']}")

    def go(self, page):
        self.browser.get("about:blank")  # so that another fragment is another page, too
        self.browser.get(self.base + page)

    def wait(self, condition, what):
        try:
            return WebDriverWait(self.browser, 10, 0.05).until(lambda _: condition())
        except Exception:  # noqa: BLE001 - told below, whatever it was
            FAULTS.append(f"{self.name}: {what}")
            return None

    def all(self, selector):
        return self.browser.find_elements(By.CSS_SELECTOR, selector)

    def one(self, selector):
        return self.browser.find_element(By.CSS_SELECTOR, selector)

    def shown(self, selector):
        return [element for element in self.all(selector) if element.is_displayed()]

    def script(self, text, *arguments):
        return self.browser.execute_script(text, *arguments)

    def keep(self, name):
        if self.pictures:
            self.browser.save_screenshot(str(Path(self.pictures) / f"{name}-{self.name}.png"))

    def fits(self, what):
        wide = self.script("return document.documentElement.scrollWidth - document.documentElement.clientWidth")
        expect(wide <= 0, f"{self.name}: {what} is cut off by {wide} pixels")

    def into(self, frame):
        self.browser.switch_to.default_content()
        self.browser.switch_to.frame(frame)


def page_of(link):
    return link.get_attribute("href").rsplit("/", 1)[1]


SHOWN_ROWS = ".listing > table:first-of-type > tbody > tr:not(.space)"


def walk_list(visit):
    """The list by itself: each tab, the orders, the search, people, box sets."""
    visit.go("list.html")
    visit.fits("the list")
    tabs = visit.all("#tabs li")
    tables = visit.all(".listing > table")
    expect(len(tabs) == len(tables) > 0, f"{len(tabs)} tabs for {len(tables)} tables")
    for number, tab in enumerate(tabs):
        tab.click()
        expect([table.is_displayed() for table in tables] == [i == number for i in range(len(tables))],
               f"tab {number} shows another table")
        expect(tab.get_attribute("aria-selected") == "true", f"tab {number} is not marked")
    tabs[-1].send_keys(Keys.HOME)
    expect(tables[0].is_displayed(), "the keyboard does not reach the first tab")

    column = ("return window[document.querySelector('.listing > table').id.replace(/list$/, '')].rows"
              ".map(function (row) { return row.cells[%d].textContent; })")
    heads = visit.shown(".listing th button")
    expect(len(heads) == 2, "the headings cannot be clicked")
    heads[0].click()
    titles = visit.script(column % 2)
    ordered = visit.script("return arguments[0].slice().sort(new Intl.Collator(undefined, {sensitivity: 'base'}).compare)",
                           titles)
    expect(titles == ordered, "the titles are not sorted")
    heads[0].click()
    expect(visit.script(column % 2) == titles[::-1], "the order of the titles does not turn")
    heads[1].click()
    numbers = [float(text or 0) for text in visit.script(column % 1)]
    expect(numbers == sorted(numbers), "the numbers are not sorted")
    visit.go("list.html")
    visit.wait(lambda: [float(text or 0) for text in visit.script(column % 1)] == numbers, "the order was not remembered")

    word = titles[len(titles) // 2].split()[0][:4]
    search = visit.one("#search")
    search.send_keys(word)
    rows = len(titles)
    count = lambda: int(visit.one("#found").text.split()[0])  # noqa: E731
    visit.wait(lambda: 0 < count() < rows and len(visit.shown(SHOWN_ROWS)) <= count(), "the search shows no title")
    expect(all(word.lower() in visit.script("return arguments[0].textContent", row).lower()
               for row in visit.shown(SHOWN_ROWS)) or not word.isascii(), "the search shows other titles")
    search.send_keys(Keys.ESCAPE)
    visit.wait(lambda: count() == rows, "the search stays")
    visit.script("window.scrollTo(0, document.documentElement.scrollHeight)")
    last = visit.script(column % 0)[-1].strip()
    visit.wait(lambda: visit.shown(SHOWN_ROWS)[-1].get_attribute("textContent").strip().startswith(last[:20]),
               "the end of the list does not come into sight")
    visit.script("window.scrollTo(0, 0)")
    visit.wait(lambda: visit.shown(SHOWN_ROWS)[0].text != "", "the beginning of the list does not come back")

    if visit.shown(".boxset > .twisty"):
        twisty = visit.shown(".boxset > .twisty")[0]
        expect(not visit.shown(".boxset li"), "a box set is open at first")
        twisty.click()
        expect(len(visit.shown(".boxset li")) > 0, "a box set does not open")
        visit.keep("boxset")
        twisty.click()
        expect(not visit.shown(".boxset li"), "a box set does not close")
    visit.keep("list")
    return titles


def walk_people(visit, people):
    """A person found by name, and the titles of that person."""
    if not people:
        return
    visit.go("list.html")
    name = people[len(people) // 2]
    visit.one("#search").send_keys(name)
    visit.wait(lambda: any(name in button.text for button in visit.shown("#people ul button")), f"{name} is not found")
    visit.keep("people")
    if visit.shown("#people ul button"):
        visit.shown("#people ul button")[0].click()
        visit.wait(lambda: visit.shown("#people .titles a"), "a person has no titles")
        visit.keep("person")


def walk_frames(visit, keys):
    """The list with a page beside it, links between them, and the address of each."""
    visit.go("index.html")
    visit.wait(lambda: "index2.html" in visit.browser.current_url, "the entrance does not lead to the frames")
    narrow = visit.script("return innerWidth <= 760")
    visit.into("list")
    visit.wait(lambda: visit.shown(".listing a"), "the list is empty")
    links = visit.shown(".listing a")
    named = [link for link in links if urllib.parse.unquote(page_of(link))[:-len(".html")] in keys]
    link = (named or links)[0]
    target = page_of(link)
    link.click()
    visit.browser.switch_to.default_content()
    visit.wait(lambda: visit.browser.current_url.endswith("#Profiles/" + target), "the address does not name the title")
    expect(visit.one("#profiles").is_displayed(), "the page of a title is not shown")
    expect(visit.one("#list").is_displayed() != narrow, "the list is in the way, or away")
    visit.into("profiles")
    visit.wait(lambda: visit.script("return location.pathname").endswith("/" + target), "another page was opened")
    visit.wait(lambda: visit.script("return document.readyState") == "complete", "the page does not end")
    visit.fits("a page")
    visit.browser.switch_to.default_content()
    visit.keep("page")
    address = visit.browser.current_url
    visit.go(address[len(visit.base):])
    visit.into("profiles")
    visit.wait(lambda: visit.script("return location.pathname").endswith("/" + target), "an address opens another title")
    links = visit.all("a[onclick*=displayCrossLink]")
    if named:
        expect(links, "a page does not link the people that it names")
    if named and links:
        visit.script("arguments[0].click()", links[0])
        visit.into("list")
        visit.wait(lambda: visit.shown("#people .titles a"), "a person in a page lists no titles")
        visit.browser.switch_to.default_content()
        expect("#person=" in visit.browser.current_url, "the address does not name the person")
        visit.keep("crosslink")
        visit.browser.back()
        visit.wait(lambda: visit.browser.current_url.endswith(target), "there is no way back")
    if narrow:
        visit.wait(lambda: visit.shown("#showList"), "there is no way to the list")
        visit.one("#showList").click()
        expect(visit.one("#list").is_displayed(), "the list does not come back")


def walk_phone(visit):
    """The view for phones: lists in lists, the way back, the search."""
    visit.go("iphone.html")
    visit.fits("the phone view")
    expect(len(visit.shown("main > ul")) == 1, "more than one list is shown")
    visit.keep("phone")
    entries = visit.shown("main > ul > li > a")
    if not entries:
        FAULTS.append("the phone view is empty")
        return
    name = entries[0].text
    entries[0].click()
    visit.wait(lambda: visit.one("#pageTitle").text == name, "the phone view opens another list")
    visit.wait(lambda: visit.shown("main > ul > li > a"), "a list of the phone view is empty")
    visit.fits("a list of the phone view")
    visit.keep("phonelist")
    sets = [link for link in visit.shown("main > ul > li > a") if "#" in (link.get_attribute("href") or "")]
    if sets:
        visit.script("arguments[0].click()", sets[0])
        visit.wait(lambda: visit.one("#backButton").text == name, "a box set has no way back")
    titles = visit.shown("main > ul > li > a")
    word = titles[0].text.split()[0] if titles else ""
    visit.one("#findText").send_keys(word)
    visit.wait(lambda: visit.shown("#foundTitles li"), "the phone view finds nothing")
    visit.shown("#foundTitles li a")[0].click()
    visit.wait(lambda: "/Profiles/" in visit.browser.current_url, "a title of the phone view does not open")
    visit.fits("a page on a phone")
    visit.keep("phonepage")


def measure(folder):
    """How long the list holds the browser up, in milliseconds of its own clock, with what it draws then."""
    with Visit(folder, 1600, 1000) as visit:
        visit.go("list.html")
        load = visit.script("var t = performance.getEntriesByType('navigation')[0]; return t.domComplete")
        times = visit.browser.execute_async_script("""
            var done = arguments[0], times = {}, heads = document.querySelectorAll('.listing th button');
            function timed(name, act, next) {
              requestAnimationFrame(function () {
                var start = performance.now();
                act();
                document.body.offsetHeight;
                requestAnimationFrame(function () {
                  setTimeout(function () { times[name] = performance.now() - start; next(); }, 0);
                });
              });
            }
            var search = document.getElementById('search');
            function type(text) { return function () { search.value = text; changetab(0); }; }
            timed('sort by title', function () { heads[0].click(); }, function () {
              timed('turn', function () { heads[0].click(); }, function () {
                timed('sort by number', function () { heads[1].click(); }, function () {
                  timed('first search', type('s'), function () {
                    timed('search', type('sto'), function () {
                      timed('clear', type(''), function () { done(times); });
                    });
                  });
                });
              });
            });""")
        rows = visit.script("return window[document.querySelector('.listing > table').id.replace(/list$/, '')].rows.length")
        print(f"list with {rows} rows in its first tab: opens in {load:.0f} ms, " +
              ", ".join(f"{name} {time:.0f} ms" for name, time in times.items()))


def main():
    arguments = sys.argv[1:]
    if not arguments or not Path(arguments[0]).is_dir():
        sys.exit(__doc__)
    folder = Path(arguments[0])
    pictures = arguments[arguments.index("--pictures") + 1] if "--pictures" in arguments else None
    os.environ.setdefault("HOME", tempfile.gettempdir())
    check_links(folder)
    if "--links" in arguments:
        finish()
    people = names_of_people(folder)
    for width, height in ((1600, 1000), (360, 740)):
        with Visit(folder, width, height, pictures) as visit:
            walk_list(visit)
            walk_people(visit, people)
            if width >= 500:
                walk_frames(visit, keys_with_people(folder))
            else:
                visit.go("index.html")
                visit.wait(lambda: "iphone.html" in visit.browser.current_url, "the entrance does not know a phone")
                walk_phone(visit)
                visit.go("index2.html")
                visit.fits("the frames")
    if pictures:
        with Visit(folder, 1600, 1000, pictures, dark=True) as visit:
            visit.go("index2.html")
            visit.into("list")
            visit.wait(lambda: visit.shown(".listing a"), "the list is empty")
            visit.shown(".listing a")[0].click()
            visit.browser.switch_to.default_content()
            visit.wait(lambda: "#Profiles" in visit.browser.current_url, "no title opens")
            visit.keep("page")
    if "--times" in arguments:
        measure(folder)
    finish()


def finish():
    for fault in FAULTS[:50]:
        print(fault)
    print("the site was looked through" + (f": {len(FAULTS)} faults" if FAULTS else " without a fault"))
    sys.exit(1 if FAULTS else 0)


if __name__ == "__main__":
    main()
