"""What a Markdown document shows: its headings, links, commands and paths."""

import re
from dataclasses import dataclass

SHELL_LANGUAGES = {"", "sh", "bash", "shell"}
SHORT_FORMS = re.compile(r"<!--\s*short forms\n(.*?)-->", re.DOTALL)
COMMENT = re.compile(r"<!--.*?-->", re.DOTALL)
FENCE = re.compile(r"^ {0,3}(```+|~~~+)\s*(\S*)")
SPAN = re.compile(r"(?<!`)(`+)(?!`)(.+?)(?<!`)\1(?!`)", re.DOTALL)
LINK = re.compile(r"\[(?:[^\[\]]|\[[^\]]*\])*\]\(\s*<?([^)\s>]+)>?[^)]*\)")
HTML_LINK = re.compile(r"<(?:a|img)\s[^>]*?(?:href|src)=\"([^\"]+)\"")
HEADING = re.compile(r"^(#{1,6})\s+(.*?)\s*#*$")


class UnreadableMark(Exception):
    """A line among the short forms that is none."""


@dataclass
class Block:
    """Lines shown as code, with the language of their fence; empty when indented."""

    language: str
    lines: list

    def commands(self):
        """The commands of a block of the shell's, continued lines joined, comments left out."""
        is_script = self.lines and self.lines[0].startswith("#!")
        if self.language not in SHELL_LANGUAGES or is_script:
            return []
        joined = "\n".join(self.lines).replace("\\\n", " ")
        commands = [re.sub(r"(^|\s)#.*", "", line) for line in joined.splitlines()]
        return [" ".join(command.split()) for command in commands if command.strip()]


@dataclass
class ShortForm:
    """What is run in place of a shown command; without a command, the reason why nothing is."""

    command: str
    reason: str


class Document:
    """A Markdown document, taken apart."""

    def __init__(self, text):
        self.short_forms = {}
        for mark in SHORT_FORMS.finditer(text):
            for line in filter(None, map(str.strip, mark.group(1).splitlines())):
                self._read_short_form(line)
        self.blocks = []
        prose = self._take_blocks(COMMENT.sub("", text))
        self.spans = [" ".join(span.group(2).split()) for span in SPAN.finditer(prose)]
        self.anchors = self._anchors(prose)
        without_code = SPAN.sub("", prose)
        self.links = LINK.findall(without_code) + HTML_LINK.findall(without_code)

    def _read_short_form(self, line):
        if " => " in line:
            shown, command = line.split(" => ", 1)
            self.short_forms[shown.strip()] = ShortForm(command.strip(), "")
        elif " not run: " in line:
            shown, reason = line.split(" not run: ", 1)
            self.short_forms[shown.strip()] = ShortForm("", reason.strip())
        else:
            raise UnreadableMark(line)

    def _take_blocks(self, text):
        """Moves the blocks out of the text; what is left is its prose."""
        prose, block, fence, before = [], None, "", ""
        for line in text.splitlines():
            opening = FENCE.match(line)
            if fence:
                if line.strip() == fence:
                    fence, block = "", None
                else:
                    block.lines.append(line)
            elif opening:
                fence, block = opening.group(1), self._open_block(opening.group(2))
            elif line.startswith("    ") and line.strip() and (block or not before.strip()):
                block = block or self._open_block("")
                block.lines.append(line[4:])
            else:
                # A blank line does not end an indented block.
                block = None if line.strip() else block
                prose.append(line)
            before = line
        return "\n".join(prose)

    def _open_block(self, language):
        self.blocks.append(Block(language, []))
        return self.blocks[-1]

    @staticmethod
    def _anchors(prose):
        """The names by which GitHub links to headings."""
        anchors, counts = set(), {}
        for line in prose.splitlines():
            heading = HEADING.match(line)
            if not heading:
                continue
            text = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading.group(2)).lower()
            name = re.sub(r"[^\w\- ]", "", text).replace(" ", "-")
            count = counts.get(name, 0)
            counts[name] = count + 1
            anchors.add(f"{name}-{count}" if count else name)
        return anchors
