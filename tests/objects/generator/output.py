"""A set of files on disk with planted.json, which describes every file and every planted value."""
import dataclasses
import json
import pathlib

from .planting import planted_in


class Output:
    """Keeps nothing of what it has written."""

    def __init__(self, folder, set_name, seed):
        self.folder = pathlib.Path(folder)
        self.folder.mkdir(parents=True, exist_ok=True)
        self._description = open(self.folder / "planted.json", "w", encoding="utf-8")
        self._description.write(f'{{"set": "{set_name}", "seed": {seed}, "files": [')
        self._count = 0

    def add(self, path, kind, file, planted=(), **more):
        """Writes the object. `planted` is what stands outside its data set."""
        path = pathlib.PurePosixPath(path)
        self.add_bytes(path, file.encoded(), kind=kind.name, sop_class=kind.sop_class, modality=kind.modality,
                       **_description(file), **more,
                       planted=[dataclasses.asdict(plant) for plant in [*planted_in(file), *planted]])

    def add_bytes(self, path, content, **description):
        """Writes a file of any bytes."""
        target = self.folder / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content)
        text = json.dumps({"path": str(path), **description}, ensure_ascii=False)
        self._description.write((",\n" if self._count else "\n") + text)
        self._count += 1

    def finish(self):
        """Completes planted.json and returns the number of files beside it."""
        self._description.write("\n]}\n")
        self._description.close()
        return self._count


def _description(file):
    character_set = file.data_set.value("SpecificCharacterSet") or ""
    return {"transfer_syntax": file.syntax.uid, "syntax": file.syntax.name,
            "undefined_lengths": {"sequences": file.lengths.sequences, "items": file.lengths.items},
            "character_set": character_set if isinstance(character_set, str) else "\\".join(character_set)}
