#!/usr/bin/python3
"""accessibles.py APPLICATION [ACTION ROLE NAME]: what assistive technology reads of a program, as a tree in JSON; or does an
action of the accessible with that role and name."""

import json
import sys

import pyatspi


def described(accessible):
    states = accessible.getState().getStates()
    named = {pyatspi.STATE_FOCUSABLE: "focusable", pyatspi.STATE_FOCUSED: "focused", pyatspi.STATE_CHECKED: "checked",
             pyatspi.STATE_SHOWING: "showing"}
    try:
        action = accessible.queryAction()
        actions = [action.getName(index) for index in range(action.nActions)]
    except NotImplementedError:
        actions = []
    try:
        extents = list(accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS))
    except NotImplementedError:
        extents = None
    return {"role": accessible.getRoleName(), "name": accessible.name, "description": accessible.description,
            "states": [name for state, name in named.items() if state in states], "actions": actions, "frame": extents,
            "children": [described(child) for child in accessible if child]}


def applications(name):
    return [program for program in pyatspi.Registry.getDesktop(0) if program and program.name == name]


def all_of(accessible):
    yield accessible
    for child in accessible:
        if child:
            yield from all_of(child)


name, *action = sys.argv[1:]
if not action:
    print(json.dumps([described(program) for program in applications(name)]))
else:
    what, role, label = action
    for program in applications(name):
        for accessible in all_of(program):
            if accessible.getRoleName() == role and accessible.name == label:
                actions = accessible.queryAction()
                names = [actions.getName(index) for index in range(actions.nActions)]
                sys.exit(0 if actions.doAction(names.index(what)) else 1)
    sys.exit(1)
