"""Every window of the program, and the way to it."""
import typing

NEW_DECK = "New Deck"
FRAME = "Tessara 1.0"


class Scene(typing.NamedTuple):
    name: str
    title: str  # of the window that it ends in
    deck: str | None = None  # a sample
    # The window that must be in front, then keys, or a menu and its entry.
    steps: tuple = ()
    # Whether each Tab goes to another control: in a page it goes to the next link.
    tabs: bool = True
    # What the card must say.
    says: tuple = ()


def standard(mode):
    return f"capitals  [{mode}]"


def extended(mode):
    return f"science  [{mode}]"


STUDY = standard("STUDY")
QUESTION = extended("STUDY")
QUIZ_OF_TEXT = (STUDY, "Mode", "Quiz")
TEST_OF_TEXT = (STUDY, "Mode", "Test")
QUIZ_OF_QUESTIONS = (QUESTION, "Mode", "Quiz")
TEST_OF_QUESTIONS = (QUESTION, "Mode", "Test")
BUILDER = ("File", "Create/Edit Card")
TO_SET_UP = ((NEW_DECK, "alt+c"), (FRAME, "File", "Set Up"))
# The first card ticked, then the box for a flat sheet.
PRINT_FLAT = ("space Tab Tab Tab space alt+p",)

SCENES = [
    Scene("study-text", STUDY, "capitals", says=("Front", "1 of 195", "What is the capital of Afghanistan?")),
    Scene("study-text-back", STUDY, "capitals", ((STUDY, "alt+s"),), says=("Back", "1 of 195", "Kabul")),
    Scene("quiz-text", standard("QUIZ"), "capitals", (QUIZ_OF_TEXT,)),
    Scene("test-text", standard("TEST"), "capitals", (TEST_OF_TEXT,)),
    Scene("test-text-credit", standard("TEST"), "capitals", (TEST_OF_TEXT, (standard("TEST"), "alt+s"))),
    Scene("study-question", QUESTION, "science"),
    Scene("quiz-question", extended("QUIZ"), "science", (QUIZ_OF_QUESTIONS,)),
    Scene("quiz-question-answer", extended("QUIZ"), "science", (QUIZ_OF_QUESTIONS, (extended("QUIZ"), "alt+s"))),
    Scene("test-question", extended("TEST"), "science", (TEST_OF_QUESTIONS,)),
    Scene("test-question-judged", extended("TEST"), "science", (TEST_OF_QUESTIONS, (extended("TEST"), "Down space")),
          says=("Front", "1 of 60", "WRONG", "The Sun is a star.")),
    Scene("score", "one  [TEST]", "one",
          (("one  [STUDY]", "Mode", "Test"), ("one  [TEST]", "space"), ("one  [TEST]", "space"),
           ("Test Complete", "Return")), says=("SCORE: 100%",)),
    Scene("go-to", "Go To Card", "capitals", ((STUDY, "Utility", "<Go To Card >"),)),
    Scene("open", "Open", None, ((NEW_DECK, "File", "Open Tessara"),)),
    Scene("save-as", "Save As", "capitals", ((STUDY, "File", "Save As"),)),
    Scene("delete", "Delete Card # 1", "capitals", ((STUDY, "File", "Delete Card"),)),
    Scene("information", "Tessara Information", "capitals", ((STUDY, "Utility", "Tessara Information"),)),
    Scene("unsaved", "Unsaved Changes: ", "capitals",
          ((STUDY, "File", "Delete Card"), ("Delete Card # 1", "alt+y"), (STUDY, "File", "Close Tessara"))),
    Scene("print", "Print Cards", "capitals", ((STUDY, "File", "Print Deck"),)),
    Scene("printer", "Print", "capitals", ((STUDY, "File", "Print Deck"), ("Print Cards", *PRINT_FLAT))),
    Scene("builder-text", "Tessara", "capitals", ((STUDY, *BUILDER),)),
    Scene("builder-question", "Tessara", "science", ((QUESTION, *BUILDER),)),
    Scene("builder-choices", "Tessara", "science", ((QUESTION, "ctrl+Next"), (QUESTION, *BUILDER))),
    Scene("builder-text-new", "Tessara", None, ((NEW_DECK, *BUILDER),)),
    Scene("builder-question-new", "Tessara", None, ((NEW_DECK, "alt+c"), (FRAME, "alt+f n x"), (NEW_DECK, *BUILDER))),
    Scene("empty", NEW_DECK, says=("0 cards", "No cards yet: File > Create/Edit Card")),
    Scene("frame", FRAME, None, ((NEW_DECK, "alt+c"),)),
    Scene("set-up", "Set-Up", None, TO_SET_UP),
    Scene("set-up-saved", "Save settings", None, (*TO_SET_UP, ("Set-Up", "space alt+a"))),
    Scene("error", "Tessara", None, (*TO_SET_UP, ("Set-Up", "shift+Tab shift+Tab Home Home Return"))),
    Scene("about", "About", None, ((NEW_DECK, "Help", "About"),)),
    Scene("separating", "Separating The Cards", None, ((NEW_DECK, "Help", "Separating the cards"),)),
    Scene("help", "Tessara Help", None, ((NEW_DECK, "F1"),), tabs=False),
]
