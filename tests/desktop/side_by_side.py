#!/usr/bin/env python3
"""One random player, the same for both scripted programs: their answers must not differ.

Usage: side_by_side.py PASTIMO-SCRIPT PASTIMO-SCRIPT-WIDGETS [STEPS [SEED]]
"""
import difflib
import random
import subprocess
import sys
import tempfile

DRAWS_A_STEP = 200
TEXTS = ["", "7", "-3", "250000", "99999999999", "Ann", "Grüße", "x" * 70, "1.5"]
MOMENTS = [0, 1, 50, 999, 1000, 1001, 5000, 61000, 200000]


class Program:
    def __init__(self, path):
        self.home = tempfile.TemporaryDirectory()
        self.process = subprocess.Popen([path, "--home", self.home.name], text=True,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def answer(self):
        lines = []
        for line in self.process.stdout:
            lines.append(line.rstrip("\n").replace(self.home.name, "HOME"))
            if lines[-1] == "ok" or lines[-1].startswith("no: "):
                break
        return lines

    def say(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        return self.answer()


class Pair:
    """Both programs; each command goes to both."""

    def __init__(self, paths):
        self.programs = [Program(path) for path in paths]
        self.history = []
        self.ended = False
        self.compare([p.answer() for p in self.programs])

    def say(self, command):
        if not command.startswith("draws"):
            self.history.append(command)
        return self.compare([p.say(command) for p in self.programs])

    def compare(self, answers):
        if answers[0] != answers[1]:
            sys.exit("\n".join(["after", *self.history, *difflib.unified_diff(
                *answers, "without a screen", "on widgets", lineterm="", n=1)]))
        self.ended = "* end" in answers[0]
        return answers[0]

    def close(self):
        for program in self.programs:
            program.process.kill()
            program.process.wait()
            program.process.stdin.close()
            program.process.stdout.close()
            program.home.cleanup()


def act(chance, pair):
    """Something that a player could do now."""
    top = pair.say("windows")[0]
    if top == "window box":
        return "answer " + chance.choice(["ok", "yes", "no", "cancel"])
    if top == "window file":
        return chance.choice(["answer cancel", 'answer "/nowhere/at all"'])
    kind = chance.random()
    if kind < 0.15:
        return f"wait {chance.choice(MOMENTS)}"
    if kind < 0.19:
        return chance.choice(["close", "minimize", "restore", "maximize", "restore",
                              f"resize {chance.randrange(20) * 750 + 15} 9000", "move form"])
    controls = [line.split()[1:] for line in pair.say("controls") if line.startswith("control ")]
    if not controls:
        return "restore"
    name, what = chance.choice(controls)
    pair.say(f"get {name}")
    return {"field": f'type {name} "{chance.choice(TEXTS)}"',
            "list": f"choose {name} {chance.randrange(6)}",
            "check": f"check {name} {chance.choice(['on', 'off'])}",
            "option": f"check {name} on"}.get(what, ("click " if chance.random() < 0.9 else "move ") + name)


def main():
    steps = int(sys.argv[3]) if len(sys.argv) > 3 else 1500
    seed = int(sys.argv[4]) if len(sys.argv) > 4 else random.randrange(10 ** 6)
    chance = random.Random(seed)
    print("seed", seed, flush=True)
    pair = Pair(sys.argv[1:3])
    for _ in range(steps):
        command = act(chance, pair)
        # Draws of chance are the same for both as long as there are some left.
        waited = int(command.split()[1]) if command.startswith("wait") else 0
        draws = DRAWS_A_STEP + waited // 60
        pair.say("draws " + " ".join(f"{chance.random():.6f}" for _ in range(draws)))
        pair.say(command)
        if not pair.ended:
            pair.say("get focus")
        else:
            pair.close()
            pair = Pair(sys.argv[1:3])
    pair.close()


main()
