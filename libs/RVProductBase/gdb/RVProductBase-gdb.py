"""Shows the value classes of RVProductBase in gdb, in Qt Creator and in other programs that ask gdb.

gdb loads this file together with libRVProductBase; elsewhere, "source RVProductBase-gdb.py" does. The program is never
asked to run anything, and an object that is not initialised yet is shown as what its memory holds.
"""

import struct

import gdb
import gdb.printing

LONGEST_TEXT = 200
MOST_OPTIONS = 50
NOT_READABLE = "<not readable>"
ENTRIES_OF_SPAN = 128


def memory(address, size):
    return bytes(gdb.selected_inferior().read_memory(address, size))


def numbers(address, layout):
    return struct.unpack(layout, memory(address, struct.calcsize(layout)))


def address_of(value):
    return int(value.address) if value.address is not None else None


def text_at(address):
    """The letters of the QString at an address: a header, a pointer to the letters, their number."""
    _, letters, size = numbers(address, "@PPn")
    if size == 0:
        return ""
    if size < 0 or size > 1 << 30 or not letters:
        raise ValueError("no text")
    shown = min(size, LONGEST_TEXT)
    text = memory(letters, 2 * shown).decode("utf-16-le", "replace")
    return text + ("…" if size > shown else "")


def options_at(address):
    """The keys and values of the QHash<QString, QString> at an address, sorted."""
    (data,) = numbers(address, "@P")
    if not data:
        return []
    _, size, buckets, _, spans = numbers(data, "@iNNNP")
    if size > buckets or buckets > 1 << 24:
        raise ValueError("no hash")
    options = []
    for span in range((buckets + ENTRIES_OF_SPAN - 1) // ENTRIES_OF_SPAN):
        start = spans + span * struct.calcsize("@%dsPBB0P" % ENTRIES_OF_SPAN)
        (entries,) = numbers(start + ENTRIES_OF_SPAN, "@P")
        for offset in memory(start, ENTRIES_OF_SPAN):
            if offset != 0xFF and len(options) < size:
                node = entries + offset * 2 * struct.calcsize("@PPn")
                options.append((text_at(node), text_at(node + struct.calcsize("@PPn"))))
            if len(options) >= MOST_OPTIONS:
                return sorted(options)
    return sorted(options)


def enumerators(value):
    """The names of all set bits, and what remains as a number."""
    kind = value.type.strip_typedefs()
    bits = int(value) & ((1 << 8 * kind.sizeof) - 1)
    names = {}
    for field in kind.fields():
        names.setdefault(field.enumval & ((1 << 8 * kind.sizeof) - 1), field.name)
    if bits == 0:
        return names.get(0, "0")
    pieces = []
    for bit in (1 << i for i in range(8 * kind.sizeof)):
        if bits & bit and bit in names:
            pieces.append(names[bit])
            bits &= ~bit
    return "|".join(pieces + ([hex(bits)] if bits else []))


def quoted(text):
    return '"' + text + '"'


def quoted_member(name):
    return lambda value: quoted(text_at(address_of(value[name])))


def member(name):
    return lambda value: str(int(value[name]))


def millimetres(value):
    return "%.10g mm" % (float(value["myValue"]) / 10)


def variants(value):
    return ", ".join(key + "=" + quoted(text) for key, text in options_at(address_of(value["myVariants"])))


def configured_variant(value):
    data = pointed_to(value["d"])
    return text_at(address_of(data["key"])) + "=" + quoted(text_at(address_of(data["value"])))


def pointed_to(shared):
    """The target of a QSharedDataPointer or QExplicitlySharedDataPointer; the member is a class of its own since Qt 6.4."""
    pointer = shared["d"]
    if pointer.type.strip_typedefs().code != gdb.TYPE_CODE_PTR:
        pointer = pointer["ptr"]
    if not int(pointer):
        raise ValueError("moved from")
    return pointer.dereference()


def margins(value):
    data = pointed_to(value["d"])
    return ", ".join("%s %d" % (name[2:].lower(), int(data[name])) for name in ("myTop", "myBottom", "myLeft", "myRight"))


def page_counts(value):
    counts = "%d-%d" % (int(value["myRange"]["min"]), int(value["myRange"]["max"]))
    increment = int(value["myPageIncrement"])
    return counts + " by %d" % increment if increment else counts


def int_range(value):
    return "%d-%d" % (int(value["min"]), int(value["max"]))


def project_info(value):
    order = quoted(text_at(address_of(value["myOrderId"]["myId"])))
    return "order %s, position %d, session %s" % (
        order,
        int(value["myOrderPosition"]),
        quoted(text_at(address_of(value["myXtciSession"]))),
    )


def spine(value):
    data = pointed_to(value["d"])
    widths = [millimetres(data[name]) for name in ("baseWidth", "blockWidth", "additionalWidth")]
    return "%s, base %s, block %s, additional %s" % (page_counts(data["pageCountOrganization"]), *widths)


def bleed(value):
    return "%d, %d" % (int(value["myHorizontal"]), int(value["myVertical"]))


def page_context(value):
    return enumerators(value["myPageType"]["myValue"]) + ", " + enumerators(value["myAlignment"]["myValue"])


def page_size_key(value):
    return page_context(value["myPageContext"]) + ", %d" % int(value["myPageCount"])


def attribute(value):
    return enumerators(value["myValue"])


CONTENTS = {
    "RVAngle": lambda value: "%.10g°" % float(value["myDegrees"]),
    "RVArticleId": member("myId"),
    "RVArticleVariants": variants,
    "RVBleedMargin": bleed,
    "RVConfiguredArticleVariant": configured_variant,
    "RVDirectoryName": attribute,
    "RVDistance": millimetres,
    "RVDistanceUnit": member("myCode"),
    "RVIntRange": int_range,
    "RVMargins": margins,
    "RVOrderId": quoted_member("myId"),
    "RVOrderProjectInfo": project_info,
    "RVPageContext": page_context,
    "RVPageCountOrganization": page_counts,
    "RVPageSizeKey": page_size_key,
    "RVPriceClass": quoted_member("myCode"),
    "RVProductType": quoted_member("myName"),
    "RVShippingGroupId": member("myId"),
    "RVSpineConfig": spine,
}


class ValuePrinter:
    """Shows "RVCoverType(HARDCOVER|GIFT)"."""

    def __init__(self, name, contents, value):
        self.name = name
        self.contents = contents
        self.value = value

    def to_string(self):
        try:
            return "%s(%s)" % (self.name, self.contents(self.value))
        except (gdb.error, ValueError, OverflowError, struct.error, RuntimeError):
            return "%s(%s)" % (self.name, NOT_READABLE)


def is_attribute(kind):
    """True for what derives from RVEnumWrapper, so for attributes of an application as well."""
    if kind.code != gdb.TYPE_CODE_STRUCT:
        return False
    if (kind.name or "").startswith("RVEnumWrapper<"):
        return True
    return any(field.is_base_class and is_attribute(field.type.strip_typedefs()) for field in kind.fields())


class Printers(gdb.printing.PrettyPrinter):
    def __init__(self):
        super().__init__("RVProductBase")

    def __call__(self, value):
        kind = value.type.strip_typedefs().unqualified()
        if kind.code == gdb.TYPE_CODE_REF:
            return self(value.referenced_value())
        if kind.code != gdb.TYPE_CODE_STRUCT or not kind.name:
            return None
        if kind.name in CONTENTS:
            return ValuePrinter(kind.name, CONTENTS[kind.name], value)
        if is_attribute(kind):
            return ValuePrinter(kind.name, attribute, value)
        return None


gdb.printing.register_pretty_printer(gdb.current_objfile(), Printers(), replace=True)
