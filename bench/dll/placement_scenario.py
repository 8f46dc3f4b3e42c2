#!/usr/bin/env python3
"""Writes the scenario of the placement benchmark (bench/MundoCocina.cpp with one cabinet):
three catalogues of N door models whose permission lines list 50 codes each, and one placement
of a cabinet whose width differs from its catalogue's.
    placement_scenario.py [DOOR_MODELS] > scenario.json"""
import json
import sys

CATALOGUES = 3
CODES_PER_RULE = 50
ARTICLES = 20
KINDS = ["MO_EA", "MO_EAl", "MO_EF", "MO_EAAl", "MO_EAF", "MO_EAlF", "MO_EAAlF"]
TEXTS = [("TR_9001", "Atención"), ("TR_9014", "Medidas no permitidas."),
         ("TR_9015", "Medida no permitida."), ("TR_9016", "Se ha restaurado la medida."),
         ("TR_9017", "Muebles rechazados:")]


def catalogue(models):
    t2 = [{"code": code, "cols": {"9": text}} for code, text in TEXTS]
    for kind, code in enumerate(KINDS):
        listed = " ".join(f"M{(i * 3 + kind) % models}" for i in range(CODES_PER_RULE))
        t2.append({"code": code, "cols": {"2": "MO: " + listed}})
    t2.append({"code": "EX_EA", "cols": {"2": "EX: R0 R7 R14"}})
    t3 = [{"name": f"A{a}", "cols": {"3": "600", "4": "560", "5": "720"}} for a in range(ARTICLES)]
    t8 = [{"code": f"M{m}", "cols": {"1": f"M{m}", "3": f"MODELO {m}", "4": "s"}}
          for m in range(models)]
    return {"language": "ESP", "tables": {"2": t2, "3": t3, "8": t8}}


def scenario(models):
    return {
        "application": {"files": {"C:\\Quorbel\\SPACE.INI": "[Local]\r\nCatalogsDir=C:\\Cat\r\n"}},
        "catalogs": {f"C:\\Cat\\cocina{k}.cat": catalogue(models) for k in range(CATALOGUES)},
        "scene": [{"id": 10,
                   "info": {"0": "cocina0", "2": "40", "7": "A0", "8": "R0", "12": "650",
                            "13": "560", "14": "720", "64": "MODELO 0"},
                   "children": [{"id": 11, "info": {"4": "EA_0"}}]}],
        "calls": [{"class": "Plugin", "method": "OnObjectPlaceAfter", "object": 10}],
    }


if __name__ == "__main__":
    json.dump(scenario(int(sys.argv[1]) if len(sys.argv) > 1 else 200), sys.stdout,
              ensure_ascii=False, indent=1)
