"""A template for python3-dbusmock that stands in systemd's place.

Its units behave as their names say: one that is called like an active state is in it, and the others are inactive.
What the manager was asked to do is written to the file CALLS of the environment, one call a line.
"""
import os

import dbus
from dbusmock import mockobject

BUS_NAME = "org.freedesktop.systemd1"
MAIN_OBJ = "/org/freedesktop/systemd1"
MAIN_IFACE = "org.freedesktop.systemd1.Manager"
UNIT_IFACE = "org.freedesktop.systemd1.Unit"
SYSTEM_BUS = False

STATES = {"active", "reloading", "failed", "activating", "deactivating", "unheard-of"}
REFUSALS = {
    "guarded": "org.freedesktop.DBus.Error.AccessDenied",
    "asking": "org.freedesktop.DBus.Error.InteractiveAuthorizationRequired",
    "masked": "org.freedesktop.systemd1.UnitMasked",
}


def load(_mock, _parameters):
    pass


def method(arguments, result, **more):
    return dbus.service.method(MAIN_IFACE, in_signature=arguments, out_signature=result, **more)


def path_of(unit):
    return MAIN_OBJ + "/unit/" + unit.replace(".", "_2e").replace("-", "_2d")


def take(call, unit, *arguments):
    if unit.split(".")[0] in REFUSALS:
        raise dbus.exceptions.DBusException("Refused", name=REFUSALS[unit.split(".")[0]])
    with open(os.environ["CALLS"], "a", encoding="utf-8") as calls:
        print(call, unit, *arguments, file=calls)


def job(call, unit, mode, state):
    take(call, unit, mode)
    mockobject.objects[path_of(unit)].UpdateProperties(UNIT_IFACE, {"ActiveState": state})
    return MAIN_OBJ + "/job/1"


@method("s", "o", async_callbacks=("reply", "fail"))
def LoadUnit(self, unit, reply, fail):
    stem = unit.split(".")[0]
    if stem == "hidden":
        fail(dbus.exceptions.DBusException("Refused", name=REFUSALS["guarded"]))
    elif stem != "silent":
        if path_of(unit) not in mockobject.objects:
            self.AddObject(path_of(unit), UNIT_IFACE, {
                "LoadState": "not-found" if stem == "missing" else "loaded",
                "ActiveState": stem if stem in STATES else "inactive",
            }, [])
        reply(path_of(unit))


@method("ss", "o")
def StartUnit(_self, unit, mode):
    return job("StartUnit", unit, mode, "failed" if unit.startswith("broken.") else "activating")


@method("ss", "o")
def StopUnit(_self, unit, mode):
    return job("StopUnit", unit, mode, "deactivating")


@method("asbb", "ba(sss)")
def EnableUnitFiles(_self, units, runtime, force):
    take("EnableUnitFiles", *units, bool(runtime), bool(force))
    return (not units[0].startswith("static."), [])


@method("", "")
def Reload(_self):
    take("Reload", "")
