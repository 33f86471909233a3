"""Receivers of mails and popups, and a service behind a pipe, in the folder that is named. What arrives lies there in
the files mail and popup; the file ports has the ports of these two. The file fault says what goes wrong ("refuse",
"drop" the connection or "hang") and at which stage."""
import asyncio
import functools
import pathlib
import sys

from aiosmtpd.smtp import SMTP

FOLDER = pathlib.Path(sys.argv[1])


async def answer(stage, transport, good, bad=b""):
    kind, _, at = (FOLDER / "fault").read_text().partition(" ")
    if at == stage and kind == "hang":
        await asyncio.sleep(60)
    if at == stage and kind == "drop":
        transport.abort()
    return bad if at == stage else good


class MailServer(SMTP):
    def __init__(self):
        super().__init__(self)
        for name, method in self._smtp_methods.items():
            self._smtp_methods[name] = functools.partial(self.obey, name.replace("HELO", "EHLO"), method)

    async def _handle_client(self):
        await (super()._handle_client() if await answer("CONNECT", self.transport, True) else self.push("554 No"))

    async def obey(self, name, method, arg):
        refusal = await answer(name, self.transport, None, "550 No")
        await (self.push(refusal) if refusal else method(arg))

    async def handle_DATA(self, _server, _session, envelope):
        names = f"{envelope.mail_from} {envelope.rcpt_tos}\n".encode()
        (FOLDER / "mail").write_bytes(names + envelope.original_content)
        return await answer("END", self.transport, "250 Yes", "554 No")


def reply(command, words, status=0):
    packet = b"\xffSMB%c%c" % (command, status) + bytes(26) + b"%c" % (len(words) // 2) + words + bytes(2)
    return b"\0\0" + len(packet).to_bytes(2, "big") + packet


async def receive_popup(reader, writer):
    got = []
    while head := await reader.read(4):
        body = await reader.readexactly(int.from_bytes(head[2:], "big"))
        if head[0] == 0x81:
            codes = [code - 65 for code in body[1:33] + body[35:67]]
            got = [bytes(high << 4 | low for high, low in zip(codes[::2], codes[1::2]))]
            stage, good, bad = "SESSION", b"\x85\0\0\0\x82\0\0\0", b"\x83\0\0\1\x82"
        else:
            # The signature, the command, the words with their number, the bytes with theirs.
            got.append(body[1:5] + body[32:])
            stage, bad = f"{body[4]:X}", reply(body[4], b"\7\1", 2)
            # Some receivers do not number messages; this one does where nothing is to go wrong.
            is_numbered = stage == "D5" and not (FOLDER / "fault").read_text()
            good = reply(body[4], b"\7\1" if is_numbered else b"")
        (FOLDER / "popup").write_bytes(b"\n".join(got))
        writer.write(await answer(stage, writer.transport, good, bad))


async def serve_pipe(reader, writer):
    message = await reader.readexactly(4)
    writer.write(await answer("PIPE", writer.transport, bytes(byte + 1 for byte in message)))
    writer.close()


async def main():
    mail = await asyncio.get_running_loop().create_server(MailServer, "127.0.0.1", 0)
    popup = await asyncio.start_server(receive_popup, "127.0.0.1", 0)
    await asyncio.start_unix_server(serve_pipe, FOLDER / "corvanesyslog")
    ports = (server.sockets[0].getsockname()[1] for server in (mail, popup))
    (FOLDER / "ports").write_text("%d %d" % tuple(ports))
    await asyncio.sleep(60)


asyncio.run(main())
