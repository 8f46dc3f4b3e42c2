#!/usr/bin/env python3
"""Writes the worlds of the DLL timings, each with the same call played twice, so that the first
call of a fresh process and a later one can be told apart:
    scenarios.py placement [DOOR_MODELS]   one placement on three catalogues of DOOR_MODELS
        (default 200) door models whose permission lines list 50 codes each, as the native
        benchmark's placement (bench/MundoCocina.cpp with one cabinet); the cabinet's width
        differs from its catalogue's and an exception list keeps it, so both calls do the same
    scenarios.py scene [CABINETS] [DOOR_MODELS]   a scene-wide check of CABINETS (default
        10,000) cabinets whose catalogue changes at every cabinet (three catalogues of
        DOOR_MODELS, default 10, door models); every fifth cabinet's width differs and every
        model is permitted, so nothing is restored and both calls do the same
"""
import json
import sys

CATALOGUES = 3
ARTICLES = 20
KINDS = ["MO_EA", "MO_EAl", "MO_EF", "MO_EAAl", "MO_EAF", "MO_EAlF", "MO_EAAlF"]
TEXTS = [("TR_9001", "Atención"), ("TR_9014", "Medidas no permitidas."),
         ("TR_9015", "Medida no permitida."), ("TR_9016", "Se ha restaurado la medida."),
         ("TR_9017", "Muebles rechazados:")]


def catalogue(models, listed_codes):
    t2 = [{"code": code, "cols": {"9": text}} for code, text in TEXTS]
    for kind, code in enumerate(KINDS):
        t2.append({"code": code, "cols": {"2": "MO: " + " ".join(listed_codes(kind))}})
    t2.append({"code": "EX_EA", "cols": {"2": "EX: R0 R7 R14"}})
    t3 = [{"name": f"A{a}", "cols": {"3": "600", "4": "560", "5": "720"}} for a in range(ARTICLES)]
    t8 = [{"code": f"M{m}", "cols": {"1": f"M{m}", "3": f"MODELO {m}", "4": "s"}}
          for m in range(models)]
    return {"language": "ESP", "tables": {"2": t2, "3": t3, "8": t8}}


def cabinet(i, k, models):
    oid = 10 + 10 * i
    return {"id": oid,
            "info": {"0": f"cocina{k}", "2": str(40 + k), "7": f"A{i % ARTICLES}", "8": f"R{i}",
                     "12": "650" if i % 5 == 0 else "600", "13": "560", "14": "720",
                     "64": f"MODELO {i % models}"},
            "children": [{"id": oid + 1, "info": {"4": f"EA_{i}"}}]}


def world(catalogues, scene, method, obj=None):
    call = {"class": "Plugin", "method": method}
    if obj is not None:
        call["object"] = obj
    return {
        "application": {"files": {"C:\\Quorbel\\SPACE.INI": "[Local]\r\nCatalogsDir=C:\\Cat\r\n"}},
        "catalogs": {f"C:\\Cat\\cocina{k}.cat": catalogues for k in range(CATALOGUES)},
        "scene": scene,
        "calls": [call, call],
    }


def placement(models=200):
    fifty = lambda kind: [f"M{(i * 3 + kind) % models}" for i in range(50)]
    return world(catalogue(models, fifty), [cabinet(0, 0, models)], "OnObjectPlaceAfter", 10)


def scene(cabinets=10000, models=10):
    every = lambda kind: [f"M{m}" for m in range(models)]
    return world(catalogue(models, every),
                 [cabinet(i, i % CATALOGUES, models) for i in range(cabinets)],
                 "OnSceneGenericFinishesAfter")


if __name__ == "__main__":
    cases = {"placement": placement, "scene": scene}
    if len(sys.argv) < 2 or sys.argv[1] not in cases:
        sys.exit("usage: scenarios.py placement [DOOR_MODELS] | scene [CABINETS] [DOOR_MODELS]")
    json.dump(cases[sys.argv[1]](*map(int, sys.argv[2:])), sys.stdout, ensure_ascii=False)
