#!/usr/bin/env python3
"""browser_test.py SITE_DIR CHROMIUM DRIVER [SCREENSHOT_DIR]: the reference in headless Chromium, from its folder."""
import os
import random
import sys
import time
import unittest

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import WebDriverWait

SITE, CHROMIUM, DRIVER = os.path.abspath(sys.argv[1]), sys.argv[2], sys.argv[3]
SHOTS = sys.argv[4] if len(sys.argv) > 4 else ""
BASE = "file://" + SITE + "/"


def browser(scripts=True):
    options = Options()
    options.binary_location = CHROMIUM
    for argument in (
        "--headless=new",
        "--no-sandbox",
        "--disable-gpu",
        "--hide-scrollbars",
        "--disable-dev-shm-usage",
        "--window-size=1360,900",
    ):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    if not scripts:
        options.add_experimental_option("prefs", {"profile.managed_default_content_settings.javascript": 2})
    return webdriver.Chrome(service=Service(DRIVER), options=options)


class Site(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = browser()

    @classmethod
    def tearDownClass(cls):
        cls.browser.quit()

    def setUp(self):
        self.browser.get_log("browser")

    def go(self, page):
        self.browser.get(BASE + page)

    def active(self):
        return self.browser.switch_to.active_element

    def hits(self, text, page="index.html"):
        """What the search finds: pairs of kind and name, in order."""
        self.go(page)
        self.browser.find_element(By.TAG_NAME, "body").send_keys("/")
        self.assertEqual(self.active().get_attribute("id"), "q")
        self.active().send_keys(text)
        WebDriverWait(self.browser, 20).until(lambda each: each.find_elements(By.CSS_SELECTOR, "#hits:not([hidden]) li"))
        return [
            tuple(each.text.split("\n")[:3]) for each in self.browser.find_elements(By.CSS_SELECTOR, "#hits [role=option]")
        ]

    def enter(self, ending):
        self.active().send_keys(Keys.ENTER)
        WebDriverWait(self.browser, 20).until(lambda each: each.current_url.endswith(ending))

    def seen(self, anchor):
        """Whether an element stands within the window."""
        return self.browser.execute_script(
            "const box = document.getElementById(arguments[0]).getBoundingClientRect();"
            "return box.top >= 0 && box.top < innerHeight;",
            anchor,
        )

    def until_seen(self, anchor):
        WebDriverWait(self.browser, 20).until(lambda _: self.seen(anchor))

    def test_a_command_is_found_by_its_name(self):
        self.assertEqual(self.hits("ntp")[0][:2], ("command", "NTP"))
        self.enter("commands/NTP.html")
        self.assertTrue(self.browser.find_element(By.TAG_NAME, "h1").text.startswith("NTP"))

    def test_a_member_is_found_by_its_key(self):
        hits = self.hits("UpdatePeriod ntp")
        self.assertEqual(hits[0][:2], ("key", "UpdatePeriod"))
        self.assertIn("CFG_NTP_INFO.nUpdatePeriod", hits[0][2])
        self.enter("records/CFG_NTP_INFO.html#nUpdatePeriod")
        self.until_seen("nUpdatePeriod")

    def test_an_event_is_found_by_its_code(self):
        self.assertIn(("event", "TrafficOverSpeed"), [each[:2] for each in self.hits("262")])

    def test_a_code_is_found_by_its_text(self):
        hits = self.hits("DoorMagnetism")
        self.assertEqual(hits[0][:2], ("code", "DoorMagnetism"))
        self.enter("#" + self.browser.current_url.split("#")[-1] if "#" in self.browser.current_url else "DOOR_MAGNETISM")
        self.until_seen(self.browser.current_url.split("#")[1])

    def test_nothing_is_found(self):
        self.assertEqual(self.hits("no such name at all"), [])
        self.assertIn("Nothing", self.browser.find_element(By.ID, "hits").text)

    def test_keyboard(self):
        hits = self.hits("Port", "commands/Alarm.html")
        self.assertGreater(len(hits), 5)
        chosen = lambda: self.browser.find_element(By.CSS_SELECTOR, "#hits [aria-selected=true]").get_attribute("id")
        box = self.active()
        self.assertEqual(chosen(), "hit0")
        box.send_keys(Keys.ARROW_DOWN, Keys.ARROW_DOWN)
        self.assertEqual(chosen(), "hit2")
        self.assertEqual(box.get_attribute("aria-activedescendant"), "hit2")
        box.send_keys(Keys.ARROW_UP)
        self.assertEqual(chosen(), "hit1")
        box.send_keys(Keys.ARROW_UP, Keys.ARROW_UP)
        self.assertEqual(chosen(), f"hit{len(hits) - 1}")
        self.assertEqual(box.get_attribute("aria-expanded"), "true")
        box.send_keys(Keys.ESCAPE)
        self.assertEqual(box.get_attribute("aria-expanded"), "false")
        self.assertFalse(self.browser.find_element(By.ID, "hits").is_displayed())
        # The first thing that Tab reaches leads past the bar.
        self.go("commands/Alarm.html")
        self.browser.find_element(By.TAG_NAME, "body").send_keys(Keys.TAB)
        self.assertEqual(self.active().text, "Skip to the content")
        self.active().send_keys(Keys.ENTER)
        self.assertEqual(self.active().get_attribute("id"), "main")

    def test_a_deep_link(self):
        self.go("commands/NTP.html#nServerNum")
        self.until_seen("nServerNum")
        plain, marked = (
            self.browser.execute_script(
                "return getComputedStyle(document.querySelector(arguments[0])).backgroundColor", each
            )
            for each in ("#nPort > th", "#nServerNum > th")
        )
        self.assertNotEqual(plain, marked)

    def kinds(self):
        """A page or more of every kind."""
        told = random.Random(20)
        pages = [
            "index.html",
            "cookbook.html",
            "schema.html",
            "platforms.html",
            "python.html",
            "changes.html",
            "search.html",
        ]
        pages = [each for each in pages if os.path.exists(f"{SITE}/{each}")]
        for folder in ("commands", "records", "rules", "events", "texts", "codes", "keys"):
            files = sorted(os.listdir(f"{SITE}/{folder}"))
            pages += [f"{folder}/{each}" for each in told.sample(files, min(4, len(files)))]
            if "index.html" in files:
                pages.append(f"{folder}/index.html")
        return pages

    def test_no_complaint_on_the_console_and_no_page_too_wide(self):
        pages = self.kinds()
        self.assertGreater(len(pages), 30)
        for width, height in ((1360, 900), (360, 740)):
            self.browser.execute_cdp_cmd(
                "Emulation.setDeviceMetricsOverride",
                {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": width < 500},
            )
            for page in pages:
                self.go(page)
                self.assertEqual(self.browser.get_log("browser"), [], page)
                wide = self.browser.execute_script("return document.documentElement.scrollWidth - innerWidth")
                self.assertLessEqual(wide, 0, f"{page} at {width}")
        self.browser.execute_cdp_cmd("Emulation.clearDeviceMetricsOverride", {})

    def test_the_console_is_looked_at(self):
        self.go("index.html")
        self.browser.execute_script("setTimeout(() => { throw new Error('planted'); })")
        WebDriverWait(self.browser, 20).until(
            lambda each: any("planted" in line["message"] for line in each.get_log("browser"))
        )

    def test_in_the_dark(self):
        self.go("commands/NTP.html")
        ground = lambda: self.browser.execute_script("return getComputedStyle(document.body).backgroundColor")
        self.assertEqual(ground(), "rgb(255, 255, 255)")
        self.browser.execute_cdp_cmd(
            "Emulation.setEmulatedMedia", {"features": [{"name": "prefers-color-scheme", "value": "dark"}]}
        )
        self.assertEqual(ground(), "rgb(18, 23, 29)")
        self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": []})

    def test_on_paper(self):
        self.go("commands/NTP.html")
        self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"media": "print"})
        self.assertFalse(self.browser.find_element(By.ID, "search").is_displayed())
        self.assertTrue(self.browser.find_element(By.ID, "nPort").is_displayed())
        self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"media": ""})

    def test_without_scripts(self):
        plain = browser(scripts=False)
        try:
            plain.get(BASE + "index.html")
            self.assertFalse(plain.find_element(By.ID, "search").is_displayed())
            plain.find_element(By.LINK_TEXT, "Commands").click()
            plain.find_element(By.LINK_TEXT, "NTP").click()
            self.assertTrue(plain.find_element(By.ID, "nPort").is_displayed())
            self.assertIn("123 as a rule", plain.find_element(By.ID, "nPort").text)
            plain.find_element(By.LINK_TEXT, "Keys").click()
            plain.find_element(By.LINK_TEXT, "P").click()
            self.assertIn("CFG_NTP_INFO.nPort", plain.find_element(By.TAG_NAME, "main").text)
        finally:
            plain.quit()

    @unittest.skipUnless(SHOTS, "no folder for pictures")
    def test_pictures(self):
        os.makedirs(SHOTS, exist_ok=True)
        shot = lambda name: (time.sleep(0.4), self.browser.save_screenshot(f"{SHOTS}/{name}.png"))
        self.go("commands/NTP.html")
        shot("command")
        self.hits("Port ntp")
        shot("search")
        self.browser.execute_cdp_cmd(
            "Emulation.setEmulatedMedia", {"features": [{"name": "prefers-color-scheme", "value": "dark"}]}
        )
        self.browser.execute_cdp_cmd(
            "Emulation.setDeviceMetricsOverride", {"width": 390, "height": 844, "deviceScaleFactor": 2, "mobile": True}
        )
        self.go("commands/Alarm.html")
        shot("telephone")
        self.browser.execute_cdp_cmd("Emulation.clearDeviceMetricsOverride", {})
        self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": []})


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
