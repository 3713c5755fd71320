"""A person's folders with which the program starts without a question and can run at once."""
import pathlib
import shutil

from .main_job import DEFAULT

ROOT = "2.25.271828182845904523536028747135"
EMPTY_CASE = dict.fromkeys(("Case ID", "Diagnosis", "Keywords", "Credits"), "")


def prepare_home(home, executable):
    """Saves the configuration that the program brings, under the name "Default", and a UID root."""
    home.configurations.mkdir(parents=True)
    shutil.copy(pathlib.Path(executable).resolve().parent / "resources" / DEFAULT,
                home.configurations / "AnonymizationConfiguration_Default.txt")
    home.settings.parent.mkdir(parents=True)
    home.settings.write_text(f"[General]\nuidRoot={ROOT}\n", encoding="ascii")
