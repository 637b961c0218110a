"""Checks a built korps.dll from its file, without running it, so that it runs
on every machine, those that cannot execute 32-bit code included.

    check_module.py --machine i386|x86-64 --version X.Y.Z
                    --export NAME... --import DLL... --registry ID... MODULE

The build passes its own lists: the exports and the DLLs the module may import
(module/CMakeLists.txt), the REGISTRY ids (module/resource_ids.h) and the
project's version. Prints one "ok:" line for each check that passes and one
"FAIL:" line for each fault found; exits 1 if anything failed.
"""

import argparse
import sys
import xml.etree.ElementTree as ElementTree

import pefile

# Each machine's PE format: the file header's machine and the optional
# header's magic; and the processor architecture a manifest names it by.
MACHINES = {
    "i386": ("PE32", pefile.MACHINE_TYPE["IMAGE_FILE_MACHINE_I386"], pefile.OPTIONAL_HEADER_MAGIC_PE, "x86"),
    "x86-64": ("PE32+", pefile.MACHINE_TYPE["IMAGE_FILE_MACHINE_AMD64"], pefile.OPTIONAL_HEADER_MAGIC_PE_PLUS,
               "amd64"),
}
RT_MANIFEST = pefile.RESOURCE_TYPE["RT_MANIFEST"]
MANIFEST_ID = 2  # the one the loader reads for a DLL


def check_header(pe, args):
    form, machine, magic, _ = MACHINES[args.machine]
    faults = []
    if pe.FILE_HEADER.Machine != machine:
        faults.append(f"PE machine {pe.FILE_HEADER.Machine:#x}; {args.machine} is {machine:#x}")
    if pe.OPTIONAL_HEADER.Magic != magic:
        faults.append(f"optional header magic {pe.OPTIONAL_HEADER.Magic:#x}; {args.machine} is {form} ({magic:#x})")
    if not pe.FILE_HEADER.IMAGE_FILE_DLL:
        faults.append(f"file characteristics {pe.FILE_HEADER.Characteristics:#x} lack DLL")
    for flag in ("DYNAMIC_BASE", "NX_COMPAT"):
        if not getattr(pe.OPTIONAL_HEADER, "IMAGE_DLLCHARACTERISTICS_" + flag):
            faults.append(f"DllCharacteristics {pe.OPTIONAL_HEADER.DllCharacteristics:#x} lack {flag}")
    return f"{form} {args.machine} DLL with DYNAMIC_BASE and NX_COMPAT", faults


def check_exports(pe, args):
    """Hosts find the exports by their plain names, never by ordinal."""
    directory = getattr(pe, "DIRECTORY_ENTRY_EXPORT", None)
    symbols = directory.symbols if directory else []
    faults = [f"ordinal {s.ordinal} is exported without a name" for s in symbols if not s.name]
    faults += [f"export {s.name.decode()} is forwarded to {s.forwarder.decode()}"
               for s in symbols if s.name and s.forwarder]
    # Each name with its 32-bit __stdcall decoration ("_NAME@BYTES") taken off.
    plain = {s.name.decode(): s.name.decode().lstrip("_").split("@")[0] for s in symbols if s.name}
    expected = set(args.exports)
    for name in sorted(plain.keys() - expected):
        faults.append(f"export {name} is decorated; hosts look for {plain[name]}" if plain[name] in expected
                      else f"unexpected export {name}")
    faults += [f"export {name} is missing" for name in sorted(expected - set(plain.values()))]
    return "exports exactly " + " ".join(sorted(expected)) + ", by plain name", faults


def check_imports(pe, args):
    """Only system DLLs, so that the module loads with nothing beside it."""
    entries = getattr(pe, "DIRECTORY_ENTRY_IMPORT", []) + getattr(pe, "DIRECTORY_ENTRY_DELAY_IMPORT", [])
    dlls = [entry.dll.decode() for entry in entries]
    allowed = {name.lower() + ".dll" for name in args.imports}
    faults = [f"imports {dll}, which is not an allowed system DLL" for dll in dlls if dll.lower() not in allowed]
    return "imports allowed system DLLs only: " + " ".join(dlls), faults


def resources(pe):
    """The size of each resource by (type, id), its languages together; a
    named type or id is its name."""
    def key(entry):
        return str(entry.name) if entry.name else entry.id

    directory = getattr(pe, "DIRECTORY_ENTRY_RESOURCE", None)
    return {(key(rtype), key(entry)): sum(language.data.struct.Size for language in entry.directory.entries)
            for rtype in (directory.entries if directory else []) for entry in rtype.directory.entries}


def file_version(pe):
    """The version resource's fixed file version and its FileVersion texts,
    as "A.B.C.D"; None without a version resource."""
    if not hasattr(pe, "VS_FIXEDFILEINFO"):
        return None, []
    fixed = pe.VS_FIXEDFILEINFO[0]
    parts = (fixed.FileVersionMS >> 16, fixed.FileVersionMS & 0xFFFF,
             fixed.FileVersionLS >> 16, fixed.FileVersionLS & 0xFFFF)
    texts = [table.entries.get(b"FileVersion", b"").decode()
             for info in getattr(pe, "FileInfo", [[]])[0] for table in getattr(info, "StringTable", [])]
    return ".".join(map(str, parts)), texts


def manifest_identity(pe):
    """The assemblyIdentity attributes of the manifest the loader reads;
    none where there is no such manifest or it is not XML."""
    directory = getattr(pe, "DIRECTORY_ENTRY_RESOURCE", None)
    for rtype in directory.entries if directory else []:
        for entry in rtype.directory.entries if rtype.id == RT_MANIFEST else []:
            if entry.id == MANIFEST_ID:
                data = entry.directory.entries[0].data.struct
                try:
                    root = ElementTree.fromstring(pe.get_data(data.OffsetToData, data.Size))
                except ElementTree.ParseError:
                    return {}
                identity = root.find("{urn:schemas-microsoft-com:asm.v1}assemblyIdentity")
                return {} if identity is None else identity.attrib
    return {}


def check_manifest(pe, args):
    """A manifest of another architecture or version than the module's keeps
    the loader from making the module's activation context."""
    identity = manifest_identity(pe)
    want = {"processorArchitecture": MACHINES[args.machine][3], "version": four_part(args.version)}
    faults = [f"the manifest's {name} is '{identity.get(name)}', the module's {value}"
              for name, value in want.items() if identity.get(name) != value]
    return "manifest for " + " ".join(want.values()), faults


def four_part(version):
    parts = version.split(".")
    return ".".join(parts + ["0"] * (4 - len(parts)))


def check_resources(pe, args):
    found = resources(pe)
    faults = []
    want = four_part(args.version)
    version, texts = file_version(pe)
    if version is None:
        faults.append("no version resource")
    else:
        if version != want:
            faults.append(f"file version {version}; the project's is {want}")
        if not texts:
            faults.append("the version resource has no FileVersion text")
        faults += [f"FileVersion text '{text}'; the project's is {want}" for text in texts if text != want]
    wanted = {(RT_MANIFEST, MANIFEST_ID): f"manifest RT_MANIFEST {MANIFEST_ID}"}
    wanted.update({("REGISTRY", i): f"REGISTRY {i}" for i in args.registry})
    for resource, label in wanted.items():
        if resource not in found:
            faults.append(f"no {label} resource")
        elif found[resource] == 0:
            faults.append(f"the {label} resource is empty")
    faults += [f"REGISTRY {i} is not one the module runs" for rtype, i in found
               if rtype == "REGISTRY" and i not in args.registry]
    sizes = ", ".join(f"{label} ({found.get(r, 0)} bytes)" for r, label in wanted.items())
    return f"resources: version {want}, {sizes}", faults


def main():
    parser = argparse.ArgumentParser(description="Checks a built korps.dll from its file.")
    parser.add_argument("--machine", required=True, choices=MACHINES)
    parser.add_argument("--version", required=True, help="the project's version, X.Y.Z")
    parser.add_argument("--export", dest="exports", action="append", default=[], metavar="NAME")
    parser.add_argument("--import", dest="imports", action="append", default=[], metavar="DLL",
                        help="a DLL the module may import, without .dll")
    parser.add_argument("--registry", action="append", type=int, default=[], metavar="ID")
    parser.add_argument("module")
    args = parser.parse_args()
    try:
        pe = pefile.PE(args.module)
    except (OSError, pefile.PEFormatError) as error:
        print(f"FAIL: {args.module}: {error}")
        return 1
    failed = False
    for check in (check_header, check_exports, check_imports, check_resources, check_manifest):
        summary, faults = check(pe, args)
        for fault in faults:
            print(f"FAIL: {fault}")
        if not faults:
            print(f"ok: {summary}")
        failed |= bool(faults)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
