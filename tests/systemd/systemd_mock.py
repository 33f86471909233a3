"""A template for python3-dbusmock that stands in systemd's place. A unit is in the active state that it is named by,
and some names stand for faults. What the manager has taken is in the file CALLS of the environment, a call a line."""
import os

import dbus
from dbusmock import mockobject

BUS_NAME, MAIN_OBJ = "org.freedesktop.systemd1", "/org/freedesktop/systemd1"
MAIN_IFACE, UNIT_IFACE = BUS_NAME + ".Manager", BUS_NAME + ".Unit"
SYSTEM_BUS = False
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
    return MAIN_OBJ + "/unit/" + unit.replace(".", "_2e")


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
    state = unit.split(".")[0]
    if state == "hidden":
        fail(dbus.exceptions.DBusException("Refused", name=REFUSALS["guarded"]))
    elif state != "silent":
        if path_of(unit) not in mockobject.objects:
            found = "not-found" if state == "missing" else "loaded"
            self.AddObject(path_of(unit), UNIT_IFACE, {"LoadState": found, "ActiveState": state}, [])
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
