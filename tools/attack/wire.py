"""A connection to the session bus of which every byte can be chosen."""

import os
import socket
import struct

def padded(data, to):
    return data + b"\0" * (-len(data) % to)


def string(text):
    raw = text.encode()
    return struct.pack("<I", len(raw)) + raw + b"\0"


def variant(signature, data, alignment, at):
    """A variant that begins at that place of the message."""
    head = bytes([len(signature)]) + signature.encode() + b"\0"
    return head + b"\0" * (-(at + len(head)) % alignment) + data


def fields(entries):
    data = b""
    for code, kind, value in entries:
        data = padded(data, 8)
        data += bytes([code, 1]) + kind.encode() + b"\0"
        if kind == "g":
            data += bytes([len(value)]) + value.encode() + b"\0"
        else:
            data = padded(data, 4) + string(value)
    return data


class Connection:
    def __init__(self, address):
        path = dict(part.split("=", 1) for part in address.split(":", 1)[1].split(","))
        self.socket = socket.socket(socket.AF_UNIX)
        name = path.get("path") or "\0" + path["abstract"]
        self.socket.connect(name)
        self.serial = 0
        self.socket.sendall(b"\0AUTH EXTERNAL " + str(os.getuid()).encode().hex().encode() + b"\r\n")
        self.socket.recv(4096)
        self.socket.sendall(b"BEGIN\r\n")
        self.send(1, [(1, "o", "/org/freedesktop/DBus"), (2, "s", "org.freedesktop.DBus"), (3, "s", "Hello"),
                      (6, "s", "org.freedesktop.DBus")])
        self.socket.recv(4096)

    def send(self, kind, entries, body=b"", signature=""):
        self.serial += 1
        if signature:
            entries = [*entries, (8, "g", signature)]
        head = fields(entries)
        fixed = struct.pack("<BBBBIII", ord("l"), kind, 1, 1, len(body), self.serial, len(head))
        self.socket.sendall(padded(fixed + head, 8) + body)

    def signal(self, path, interface, name, body, signature):
        self.send(4, [(1, "o", path), (2, "s", interface), (3, "s", name)], body, signature)

    def setting_changed(self, group, key, signature, data, alignment=4):
        """The settings portal's signal, from somebody who is not the portal."""
        body = padded(string(group), 4) + string(key)
        body += variant(signature, data, alignment, len(body))
        self.signal("/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged", body, "ssv")
