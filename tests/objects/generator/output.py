"""A set of files on disk with planted.json, which describes every file and every planted value."""
import dataclasses
import json
import pathlib

from .planting import planted_in


class Output:
    def __init__(self, folder, set_name, seed):
        self.folder = pathlib.Path(folder)
        self._about = {"set": set_name, "seed": seed}
        self._files = []
        self.members = []  # (path, ObjectFile) of all objects

    def add(self, path, kind, file, planted=(), **more):
        """Writes the object. `planted` is what stands outside its data set."""
        path = pathlib.PurePosixPath(path)
        self.add_bytes(path, file.encoded(), kind=kind.name, sop_class=kind.sop_class, modality=kind.modality,
                       **_description(file), **more,
                       planted=[dataclasses.asdict(plant) for plant in [*planted_in(file), *planted]])
        self.members.append((path, file))

    def add_bytes(self, path, content, **description):
        """Writes a file of any bytes."""
        target = self.folder / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content)
        self._files.append({"path": str(path), **description})

    def finish(self, **more):
        """Writes planted.json and returns the number of files beside it."""
        about = json.dumps({**self._about, **more}, ensure_ascii=False)[1:-1]
        files = ",\n".join(json.dumps(file, ensure_ascii=False) for file in self._files)
        text = f'{{{about}, "files": [\n{files}\n]}}\n'
        (self.folder / "planted.json").write_text(text, encoding="utf-8")
        return len(self._files)


def _description(file):
    character_set = file.data_set.value("SpecificCharacterSet") or ""
    return {"transfer_syntax": file.syntax.uid, "syntax": file.syntax.name,
            "undefined_lengths": {"sequences": file.lengths.sequences, "items": file.lengths.items},
            "character_set": character_set if isinstance(character_set, str) else "\\".join(character_set)}
