"""Running tests that leave a picture of the screen when they fail."""
import pathlib
import sys
import unittest

from outside.program import take_picture


class ResultWithPictures(unittest.TextTestResult):
    """Takes a picture as soon as a test fails, while the program is still on the screen."""
    folder = pathlib.Path()
    take = staticmethod(take_picture)

    def addFailure(self, test, err):
        self.failed(test)
        super().addFailure(test, err)

    def addError(self, test, err):
        self.failed(test)
        super().addError(test, err)

    def failed(self, test):
        self.take(self.folder / (test.id().rpartition(".")[2] + ".png"))


def run_tests(picture_folder, take=take_picture):
    ResultWithPictures.folder = pathlib.Path(picture_folder).resolve()
    ResultWithPictures.take = staticmethod(take)
    unittest.main(argv=sys.argv[:1],
                  testRunner=unittest.TextTestRunner(verbosity=2, resultclass=ResultWithPictures))
