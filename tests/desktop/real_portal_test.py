"""Mail and addresses with the distribution's own portal, which does not answer as quickly or as kindly as a stand-in."""

import unittest

from support import processes
from support.case import DesktopTestCase
from support.handler import install_handler
from support.mail import CommandMessages
from support.panel import CHOOSER, MAIN_WINDOW
from support.real_portal import start_real_portal
from support.waiting import eventually, throughout

SITE = "http://orvikstudio.example/"
OPENED = b"default browser was successfully opened\n"


class RealPortal(DesktopTestCase):
    def start_portal_as_this_person(self):
        for process in start_real_portal(self.bus, self.environment):
            self.addCleanup(processes.end, process)

    def send(self, path):
        self.suite.write_request(path)
        self.panel = self.start_panel()
        self.panel.complaints()
        self.panel.chooser()
        self.addCleanup(self.panel.kill)
        self.hands.press("Return")
        eventually(lambda: not self.panel.shows(CHOOSER), "the chooser to go")

    def test_a_message_reaches_the_mail_program(self):
        opened = install_handler(self.home, "x-scheme-handler/mailto")
        self.start_portal_as_this_person()
        path = self.home.make_file("Report.pdf", b"report")
        self.send(path)

        message, = eventually(opened, "the mail program")
        self.assertTrue(message.startswith("mailto:"), message)
        self.assertIn("Report.pdf", message)

    def test_without_a_mail_program_the_mail_command_gets_the_item(self):
        install_handler(self.home)
        messages = CommandMessages(self.home.install_mail_command())
        self.start_portal_as_this_person()
        self.send(self.home.make_file("Report.pdf", b"report"))

        self.assertEqual(messages.only().attachments, [b"report"])

    def test_without_a_mail_program_and_the_mail_command_the_person_is_told(self):
        install_handler(self.home)
        self.start_portal_as_this_person()
        self.send(self.home.make_file("Report.pdf", b"report"))

        eventually(lambda: self.panel.shows("“Report.pdf” was not sent."), "the alert")

    def open_site(self):
        self.panel = self.start_panel(PATH="/usr/bin:/bin")
        self.panel.output_expected = True
        self.panel.complaints()
        window = self.panel.main_window()
        self.hands.click(window.find("page tab", "About").extents)
        self.hands.click(eventually(lambda: window.find("push button", "Web Site"), "the About page").extents)

    def test_an_address_reaches_the_browser(self):
        opened = install_handler(self.home, "x-scheme-handler/http")
        self.start_portal_as_this_person()
        self.open_site()

        self.assertEventuallyEqual(opened, [SITE])
        self.assertEventuallyEqual(self.panel.standard_output, OPENED)

    def test_without_a_browser_the_portal_asks_and_nothing_is_said(self):
        install_handler(self.home)
        self.start_portal_as_this_person()
        self.open_site()
        asking = eventually(lambda: set(self.windows.stacking()) - set(self.windows.of_process(self.panel.process_id)),
                            "the portal's window")

        window = self.panel.window(MAIN_WINDOW)
        window.find("page tab", "Menu Items").act("Press")
        eventually(lambda: window.find("check box", "Open Terminal"), "the panel to be usable meanwhile")
        throughout(lambda: self.panel.standard_output() == b"", "nothing is said", 2.0)
        self.hands.activate(asking.pop())
        self.hands.press("Escape")
        throughout(lambda: self.panel.standard_output() == b"" and self.panel.is_running(), "nothing is said", 1.0)


if __name__ == "__main__":
    unittest.main()
