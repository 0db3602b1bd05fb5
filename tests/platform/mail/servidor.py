"""An SMTP server on a free port of loopback, for one test: tells the port on standard output, keeps what it received in
a file and ends with its standard input.

usage: servidor.py FILE [auth] [tls CERTIFICATE KEY] [refuse] [silent]
"""
import asyncio
import ssl
import sys

from aiosmtpd.smtp import SMTP, AuthResult


class Keeper:
    def __init__(self, path, refuse):
        self.path = path
        self.refuse = refuse

    async def handle_RCPT(self, server, session, envelope, address, options):
        if self.refuse:
            return "550 5.1.1 Caixa postal inexistente"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        with open(self.path, "wb") as file:
            file.write(f"from {envelope.mail_from}\n".encode())
            for address in envelope.rcpt_tos:
                file.write(f"to {address}\n".encode())
            file.write(f"tls {'yes' if session.ssl else 'no'}\n".encode())
            file.write(f"user {session.auth_data or ''}\n\n".encode())
            file.write(envelope.content)
        return "250 OK"


def authenticate(server, session, envelope, mechanism, data):
    user, password = data.login.decode(), data.password.decode()
    if (user, password) == ("loja", "s3gr€do"):
        return AuthResult(success=True, auth_data=user)
    return AuthResult(success=False, handled=False)


async def main():
    path, words = sys.argv[1], sys.argv[2:]
    options = {"enable_SMTPUTF8": True, "hostname": "localhost"}
    if "auth" in words:
        options |= {"authenticator": authenticate, "auth_required": True, "auth_require_tls": False}
    if "tls" in words:
        place = words.index("tls")
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(words[place + 1], words[place + 2])
        options |= {"tls_context": context, "require_starttls": True}
    keeper = Keeper(path, "refuse" in words)
    loop = asyncio.get_running_loop()
    factory = asyncio.Protocol if "silent" in words else lambda: SMTP(keeper, **options)
    server = await loop.create_server(factory, "127.0.0.1", 0)
    print(server.sockets[0].getsockname()[1], flush=True)
    await loop.run_in_executor(None, sys.stdin.read)


asyncio.run(main())
