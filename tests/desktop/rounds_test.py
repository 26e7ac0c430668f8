"""Each of the ten games from the launcher to its score table and back, by real clicks and keys.

The cards are laid ready and the program's waits are short; the clocks run as ever."""

import os
import sys
import tempfile

from desktop import Program, check, play

PASTIMO, WANTED = sys.argv[1:3]  # WANTED: a game, or 0 or 1 for one half of them
GAMES = []
SCORES = ["lblCurrentScore", "lblTotalScore"]


def game(button, window, table, *staged, files={}):
    """Marks what plays a game until a score enters its table."""
    def note(moves):
        GAMES.append((button, window, table, staged, files, moves))
    return note


class Player(Program):
    """What players do in most of the games."""

    def points(self, label):
        return int(self.text(label).replace(",", ""))

    def clicks(self, name, *numbers):
        for number in numbers:
            self.click("%s(%d)" % (name, number))

    def pause(self, card):
        """A paused game hides its cards, and nothing comes of a click where one was."""
        place = self.place(card)
        self.click("cmdPause")
        self.sees("cmdPause", "&Resume")
        self.click_at(place)
        self.keys("alt+r")
        self.until(lambda: self.text("cmdPause") != "&Resume", "the game goes on")
        self.place(card)

    def round_ends(self, act, late, next_round):
        """What is clicked while a round is scored has no effect, then or later."""
        places = [self.place(name) for name in late]
        act()
        self.until(lambda: self.ask("busy") == "yes", "the round is scored")
        for place in places:
            self.click_at(place)
        self.settles(*next_round)

    def settles(self, label, text):
        self.sees(label, text)
        self.until(lambda: self.ask("busy") == "no", "the round is set up")

    def scored(self, label, least, most):
        check(least <= self.points(label) <= most, "%s = %s" % (label, self.text(label)))


@game("cmdQuindle", "frmQuindle", "Quindle Hi Score Table ES 11_90.Txt",
      "deck 2S 3S 4S 6S 7S 8S 9S 10H 2C 3C 4C 6C 7C 8C 9C 10C 2D 3D 4D 6D 1S 1C 5H" + " 9D" * 29)
def quindle(player):
    player.clicks("FieldCardPicture", 7, 20)
    player.sees("lblCurrentElevens", "1")
    player.click("PlayCardPicture")
    player.sees("lblCardCount", "Cards: 29")
    player.pause("UpCardPicture")
    player.round_ends(lambda: player.keys("alt+t"), ["PlayCardPicture", "FieldCardPicture(21)"],
                      ("lblCurrentRound", "2"))
    player.scored("lblCurrentScore", 1200, 10100)
    check(player.text("lblCardCount") == "Cards: 30", "a click has drawn a card")
    player.click("cmdTakeScore")


@game("cmdMozaro", "frmMozaro", "Mozaro Hi Score Table 60.Txt",
      "draws" + " .1 .1 .5 .5 .9 .9 .1 .1 .5 .5 .9 .9 .1 .1" * 8,
      "draws" + (" .1 .5 .9" * 5 + " .5 .9 .1" * 5 + " .9 .1 .5" * 5) * 32)
def mozaro(player):
    """Stripes of two columns go one by one; the second board has no group, nor has its jumble."""
    for left in range(7):
        player.move("PlayingSurface", 0.97, 0.1)
        player.sees("lblGroupValue", "Group Value: 12,800")
        if left == 1:
            player.pause("PlayingSurface")
        if left < 6:
            player.click("PlayingSurface", 0.97, 0.1)
    player.round_ends(lambda: player.click("PlayingSurface", 0.97, 0.1),
                      ["cmdQuit", "cmdPause", "cmdTakeScore"], ("lblCurrentRound", "2"))
    player.scored("lblTotalScore", 7 * 13800 + 50000 + 100, 7 * 13800 + 50000 + 6000)
    player.click("PlayingSurface", 0.5, 0.5)


@game("cmdBrenlock", "frmBrenlock", "Brenlock Hi Score Table 60.Txt",
      "deck 3C 1S 13S 1H 13H 1C 13C 1D 13D 10S 9S" + " 2S" * 41)
def brenlock(player):
    player.clicks("cmdHit", 0, 0)
    player.sees("ColumnTotal(0)", "21")
    player.pause("cmdHit(1)")
    player.clicks("cmdHit", 1, 1, 2, 2, 3, 3, 4, 4)
    player.round_ends(lambda: player.clicks("cmdHit", 4), ["cmdHit(0)", "cmdGiveUp", "cmdQuit"],
                      ("lblRound", "Round: 2"))
    player.scored("lblTotalScore", 200000, 300000)
    for label in ("Round: 3", "Round: 4"):
        player.click("cmdGiveUp")
        player.settles("lblRound", label)
    player.click("cmdGiveUp")


@game("cmdHarvel", "frmHarvel", "Harvel Hi Score Table 90.Txt",
      "deck 1S 5H 9C 6D 2S 3S 2H 3H 2C" + " 13S" * 43)
def harvel(player):
    player.clicks("cmdHit", 0, 0, 0, 0)
    player.sees("lbl21s", "1")
    player.clicks("cmdHit", 1, 1, 1, 1, 1)
    player.sees("lblTotalScore", "750")
    player.pause("cmdHit(2)")
    player.round_ends(lambda: player.click("cmdTakeScore"), ["cmdHit(2)", "cmdExit"],
                      ("lblRound", "Round: 2"))
    player.scored("lblTotalScore", 750, 30000)
    player.click("cmdTakeScore")
    player.settles("lblRound", "Round: 3")
    player.click("cmdTakeScore")


@game("cmdOstrel", "frmOstrel", "Ostrel Hi Score Table 45.Txt",
      "deck 2S 1H 13C 12D 11S 10H 9C 8D 7S 6H 5C 4D 3S 2H 1C 13D 12S 11H 10C 9D 8S 7H 6C 5D 4S 3H "
      "2C 1D" + " 5H" * 23 + " 13S")
def ostrel(player):
    player.clicks("UpCardImage", *range(27, 2, -1))
    player.pause("UpCardImage(2)")
    player.clicks("UpCardImage", 2, 1)
    player.round_ends(lambda: player.clicks("UpCardImage", 0), ["cmdExit", "CardStackPicture"],
                      ("lblCurrentRound", "2"))
    player.scored("lblCurrentScore", 40600 + 15000 + 28000 + 100, 40600 + 15000 + 28000 + 4500)
    player.click("cmdTakeScore")
    player.settles("lblCurrentRound", "Bonus")
    player.click("cmdTakeScore")


@game("cmdPellow", "frmPellow", "Pellow Hi Score Table 45.Txt", "deck" + " 7H" * 52)
def pellow(player):
    player.clicks("PlayCard", 18, 19)
    player.sees("lblScorePairs", "1")
    player.pause("PlayCard(20)")
    player.clicks("PlayCard", 20, 21, 22, 14, 15, 16, 17, 9, 10, 11, 12, 13, 5, 6, 7, 8, 0, 1, 2, 3)
    player.round_ends(lambda: player.clicks("PlayCard", 4, 23), ["cmdExit", "CardStackPicture"],
                      ("lblCurrentRound", "2"))
    player.scored("lblCurrentScore", 59500 + 100, 59500 + 4500)
    player.click("cmdTakeScore")

@game("cmdVermoy", "frmVermoy", "Vermoy Hi Score Table 75.Txt",
      *["deck 1S 2S 3S 4S 5S 1H 2H 3H 4H 5H 1C 2C 3C 4C 5C 1D 2D 3D 4D 5D 6S 7S 8S 9S 10S"
        + " 13D" * 27] * 4)
def vermoy(player):
    """Five straight flushes of five fours of a kind, four times."""
    player.clicks("PlayCards", 0)
    player.pause("PlayCards(1)")
    player.clicks("PlayCards", *range(1, 24))
    player.round_ends(lambda: player.clicks("PlayCards", 24), ["cmdQuit", "PlayCards(0)"],
                      ("lblRound", "Round: 2"))
    check(player.points("lblCurrentScore") % 3500 == 0, "points are a product")
    player.scored("lblCurrentScore", 3500, 75 * 3500)
    for label in ("Round: 3", "Bonus Round"):
        player.clicks("PlayCards", *range(25))
        player.settles("lblRound", label)
    player.clicks("PlayCards", *range(25))


@game("cmdKestrane", "frmKestrane", "Kestrane Hi Score Table 120.Txt",
      "deck 5C 5D 5S 1H 2H 3H" + " 12S" * 46)
def kestrane(player):
    for column, points in ((0, "6,000"), (1, "11,300")):
        for _ in range(3):
            player.clicks("UpCard", 2)
            player.clicks("PlayCard", column)
        player.sees("lblCurrentScore", points)
        if column == 0:
            player.pause("UpCard(2)")
    player.round_ends(lambda: player.click("cmdTakeScore"), ["cmdQuit", "UpCard(2)"],
                      ("lblRound", "Round: 2"))
    player.scored("lblCurrentScore", 11300 + 200, 11300 + 120 * 200)
    player.click("cmdTakeScore")


@game("cmdPhrase", "frmPhrase", "Glimmard Hi Score Table 45.Txt", "draws" + " .9" * 60,
      files={"Glimmard.Ini": "[Topic]\r\n3\r\n\r\n",
             "GMP.Dat": "CURRENT_PHRASE_NUMBER=2\r\nLeft behind\r\nRock\r\n\r\nIt's 9 to 5\r\n"
                        "Hello, world!\r\n\r\n"})
def glimmard(player):
    player.click("cmdLetter(17)")
    player.sees("lblLetter(36)", "R")
    player.pause("cmdLetter(2)")
    player.type("oc")
    player.round_ends(lambda: player.type("k"), ["cmdLetter(20)", "cmdSolve", "cmdExit"],
                      ("lblCurrentRound", "2"))
    player.scored("lblCurrentScore", 35000, 300000)
    player.click("cmdSolve")
    player.type("itso")
    player.settles("lblMessage", "Select 5 consonants and 1 vowel")
    player.clicks("cmdLetter", 11, 25, 14, 17, 3, 7)
    player.type("we")


@game("cmdFandrel", "frmFandrel", "Fandrel Hi Score Table 90.Txt",
      *["deck" + " 1D" * 44 + " 10D 9D 7D 6D 5D 4C 3H 2S"] * 2)
def fandrel(player):
    def move(card):
        player.clicks("imgPlayCard", card)
        player.clicks("imgUpperCard", card)

    move(1)
    player.sees("lblCardCount", "Cards remaining: 46")
    player.pause("imgPlayCard(2)")
    move(2)
    move(3)
    player.ready("box There are no legal moves left.")
    player.round_ends(lambda: player.keys("Return"), ["imgPlayCard(1)"], ("lblCurrentRound", "2"))
    player.scored("lblTotalScore", 10000, 45000)
    for card in (1, 2, 3):
        move(card)
    player.ready("box There are no legal moves left.")
    player.keys("Return")


def whole(button, window, table, staged, files, moves):
    """A test of one game: opened, played, its score entered, closed."""
    def test(display):
        home = tempfile.mkdtemp()
        table_file = os.path.join(home, table)
        lowest = "Corvane, 10, Jan 01 2000 12:00 am\r\n" * 10 + "\r\n"
        for name, text in [(table, lowest)] + list(files.items()):
            with open(os.path.join(home, name), "w") as file:
                file.write(text)
        player = Player(display, [PASTIMO], PASTIMO_HOME=home, PASTIMO_PACE="10")
        player.ready("frmSelect")
        player.click(button)
        player.ready(window)
        for line in staged:
            player.ask(line)
        player.click("cmdPlay")
        player.until(lambda: player.text("cmdPlay") != "&Play", "a game")
        moves(player)
        player.ready("frmHiScoreName")
        player.type("Ann")
        player.keys("Return")
        player.ready("frmHighScores")
        with open(table_file) as file:
            entered = file.readline()
        player.click("cmdDone")
        player.settles("cmdPlay", "&Play")
        score = next(label for label in SCORES if player.ask("place " + label) != "none")
        check(entered.startswith("Ann, %d, " % player.points(score)), "entered: " + entered)
        player.ready(window)
        player.keys("alt+F4")
        player.ready("box Giving up so soon?")
        player.keys("alt+y")
        player.ready("frmSelect")
        player.click("cmdClose")
        check(player.ended() == 0, "exit status")
        check(any(name.endswith(".Ini") for name in os.listdir(home)), "settings are written")

    test.__name__ = moves.__name__
    return test


play([whole(*row) for i, row in enumerate(GAMES) if WANTED in (str(i % 2), row[-1].__name__)])
