#!/usr/bin/env python3
"""Checks that includes run one way: a subsystem includes only itself and the
subsystems it stands on (the VULIB_DEPS_* lists of cmake/Sources.cmake), and a
portable file never includes a Windows-only (win/) header. Prints each
offending include and exits 1 if there is one."""
import pathlib, re, sys

root = pathlib.Path(__file__).resolve().parent.parent
cmake = (root / 'cmake' / 'Sources.cmake').read_text()
subsystems = re.search(r'set\(VULIB_SUBSYSTEMS ([^)]*)\)', cmake).group(1).split()
deps = {s: set(re.search(r'set\(VULIB_DEPS_%s ([^)]*)\)' % s, cmake).group(1).replace('"', '').split())
        for s in subsystems}
include = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)

bad = []
for sub in subsystems:
    for f in sorted((root / sub).rglob('*')):
        if f.suffix not in ('.h', '.cpp'):
            continue
        portable = 'win' not in f.relative_to(root).parts
        for target in include.findall(f.read_text(encoding='utf-8')):
            top = target.split('/')[0]
            if top not in subsystems:
                continue
            if top != sub and top not in deps[sub]:
                bad.append(f'{f.relative_to(root)}: includes "{target}" ({sub} does not stand on {top})')
            elif portable and '/win/' in target:
                bad.append(f'{f.relative_to(root)}: portable file includes "{target}"')
for line in bad:
    print(line)
print(f'layers: {len(bad)} upward or cross includes')
sys.exit(1 if bad else 0)
