"""How a program that was started here comes to its end: one that a signal ends has broken down, but for the
signal that it was sent."""
import signal

SECONDS_TO_END = 30


class WrongEnd(AssertionError):
    """The program did not end as it should."""


def name_of(status):
    return signal.Signals(-status).name if status < 0 else f"status {status}"


def expect(program, wanted, seconds=SECONDS_TO_END):
    """Waits for the end of a program that ends by itself, with that status."""
    status = program.wait(seconds)
    if status != wanted:
        raise WrongEnd(f"The program ended with {name_of(status)} instead of {name_of(wanted)}.")


def end(program, number=signal.SIGTERM, seconds=SECONDS_TO_END):
    """Ends a program that should still run, and nothing but the signal may end it."""
    if program.poll() is not None:
        raise WrongEnd(f"The program has ended before, with {name_of(program.returncode)}.")
    program.send_signal(number)
    expect(program, -number, seconds)
