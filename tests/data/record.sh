#!/bin/sh
# record.sh [target folder]: records what dcmodify prints in the cases below, as a run's jobs collect it.
# The texts in tooloutput/ were made with DCMTK 3.6.7.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
target=$(cd "${1:-$here/tooloutput}" && pwd)
dictionary=$(find /usr/share/libdcmtk* /usr/share/dcmtk -name dicom.dic 2>/dev/null | head -n 1)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
dump2dcm "$here/image.dump" "$scratch/image.dcm"
ln -s "$(command -v dcmodify)" "$scratch/dcmodify"

# folder NAME: an empty folder to work in
folder() { rm -rf "$scratch/work"; mkdir "$scratch/work"; cd "$scratch/work"; }
# record NAME COMMAND: what the command line prints in the folder, the dictionary alone in its environment
record() {
    printf '#!/bin/sh\n%s >.noxTemp.out 2>&1' "$2" >.noxTemp.sh
    env -i DCMDICTPATH="$dictionary" /bin/sh ./.noxTemp.sh </dev/null || true
    mv .noxTemp.out "$target/$1.txt"
}
name='-i "(0010,0010)=ANON"'

folder; cp ../image.dcm a.dcm; mkdir Series_A 'Two Words'; echo hello >notes.txt; : >empty.dcm
record mixed-folder "../dcmodify -ie -imt -nb $name *"
folder
record empty-folder "../dcmodify -ie -imt -nb $name *"
folder; for i in 01 02 03 04 05 06 07 08 09 10 11 12; do : >"$i.dcm"; done
record twelve-unreadable "../dcmodify -ie -imt -nb $name *"
folder; for i in 01 02 03 04 05 06 07 08 09 10; do mkdir "S$i"; done
record ten-subfolders "../dcmodify -ie -imt -nb $name *"
folder; mkdir S1 S2; : >bad.dcm
record two-subfolders-one-unreadable "../dcmodify -ie -imt -nb $name *"
folder; cp ../image.dcm a.dcm; cp ../image.dcm b.dcm
record sequence "../dcmodify -ie -imt -nb -i \"(0008,1140)=X\" *"
record not-a-tag "../dcmodify -ie -imt -nb -i \"(abcdefghi)=X\" -ea \"(abcdefghi)\" a.dcm"
record private-without-creator "../dcmodify -ie -imt -nb -i \"(0009,1001)=X\" -i \"(0028,0010)=abc\" a.dcm"
record unknown-option "../dcmodify -ie -imt -nb -xyz.dcm a.dcm"
record missing-tool "../dcmdummy -ie -imt -nb $name *"
dictionary=/nowhere/dicom.dic
record missing-dictionary "../dcmodify -ie -imt -nb -i \"PatientName=ANON\" $name a.dcm"
