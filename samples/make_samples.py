#!/usr/bin/env python3
"""Writes the sample scenarios (samples/*.json, listed in demo.list order by the caller) and the
inputs of the golden scenario tests (tests/scenarios/{entry,rules,wizard}/*.json) from one
small kitchen world: a Spanish catalogue with its texts, an English dictionary, SPACE.INI, the
three manufacturer catalogues and a few cabinets.  Run from the repository root:
    python3 samples/make_samples.py
then regenerate the expected transcripts with quorbel-sim and read them before committing."""
import copy
import json
import os
import sys

sys.dont_write_bytecode = True  # no cache beside the samples
import textos  # noqa: E402  (the sample catalogues' texts, shared with make_scenarios.py)

MODULE = "C:\\Quorbel"
CATS = MODULE + "\\Catalogs"

TEXTOS = textos.MENSAJES
# The special-editing dialog's texts (quorbel-sim lint finds a catalogue without them).
TEXTOS_DIALOGO = {k: v for k, v in textos.DIALOGO.items() if k not in TEXTOS}
INGLES = {
    "Atención": "Attention",
    TEXTOS["TR_9014"]: "The changed measures are not allowed for this door model.",
    TEXTOS["TR_9015"]: "The changed measure is not allowed for this door model.",
    TEXTOS["TR_9016"]: "The catalogue measure has been restored.",
    TEXTOS["TR_9017"]: "Cabinets with measures that are not allowed:",
    TEXTOS["TR_9021"]: "ST programme door model: check delivery times.",
}


def line_code(code, **cols):
    return {"code": code, "cols": {str(k[1:]): v for k, v in cols.items()}}


def line_name(name, **cols):
    return {"name": name, "cols": {str(k[1:]): v for k, v in cols.items()}}


def article(name, width, depth, height):
    return line_name(name, c3=width, c4=depth, c5=height)


def textos():
    return [line_code(k, c9=v) for k, v in {**TEXTOS, **TEXTOS_DIALOGO}.items()]


def model(code, name, script="PUERTA"):
    return line_code(code, c1=code, c3=name, c4=script)


def cocinas():
    reglas = [
        line_code("MO_EA", c2="MO: M02 M05"),      # width: MONZA, MIAMI
        line_code("MO_EAl", c2="MO: ALL"),         # height: every model
        line_code("MO_EF", c2="MO: M01 M02"),      # depth: TIBER, MONZA
        line_code("MO_EAAl", c2="MO: M02"),
        line_code("MO_EAF", c2="MO: M02"),
        line_code("EX_EA", c2="EX: B45-TIBER"),
    ]
    return {
        "language": "ESP",
        "tables": {
            "2": textos() + reglas,
            "3": [article("B60", "600", "560", "720"), article("B45", "450", "560", "720"),
                  article("A60", "600", "330", "700")],
            "4": [line_name("D-B60", c3="Mueble bajo 60 cm, una puerta"),
                  line_name("D-B45", c3="Mueble bajo 45 cm, una puerta")],
            "8": [model("M01", "TIBER"), model("M02", "MONZA"), model("M03", "TIBER ST"),
                  model("M04", "@PLANTILLA"), model("M05", "MIAMI"),
                  model("M06", "LAZIO")],
        },
    }


def fabricante(articulos):
    return {"language": "ESP",
            # "EX:" empties the width exception list left by the catalogue used before.
            "tables": {"2": textos() + [line_code("EX_EA", c2="EX:")],
                       "3": [article(a, "600", "560", "720") for a in articulos],
                       "8": [model("F01", "TIBER"), model("F02", "NEVADA")]}}


def mueble(oid, fichero, numero, articulo, referencia, modelo, ancho, fondo, alto,
           marcas=(), desc=None):
    children = [{"id": oid + 1 + i, "info": {"4": m + str(oid)}} for i, m in enumerate(marcas)]
    if desc:
        children.append({"id": oid + 9, "info": {"4": articulo + "_DESC", "7": desc}})
    return {"id": oid,
            "info": {"0": fichero, "2": numero, "7": articulo, "8": referencia,
                     "12": ancho, "13": fondo, "14": alto, "64": modelo},
            "children": children}


ESCENA = [
    # Width changed, TIBER may not change width: refused.
    mueble(100, "cocinas", "40", "B60", "B60-TIBER", "TIBER", "650", "560", "720",
           ["EA_"], "D-B60"),
    # Width changed, MONZA may: accepted by the door model.
    mueble(110, "cocinas", "40", "B60", "B60-MONZA", "MONZA", "650", "560", "720",
           ["EA_"], "D-B60"),
    # Width changed, TIBER, but the reference is on the width exception list.
    mueble(120, "cocinas", "40", "B45", "B45-TIBER", "TIBER", "500", "560", "720",
           ["EA_"], "D-B45"),
    # Width and depth changed, LAZIO may change neither: both refused.
    mueble(130, "cocinas", "40", "B60", "B60-LAZIO", "LAZIO", "650", "600", "720",
           ["EA_", "EF_"]),
    # ST programme door model, catalogue measures.
    mueble(140, "cocinas", "40", "B60", "B60-TIBER-ST", "TIBER ST", "600", "560", "720"),
    # Manufacturer cabinets (Wizard).
    mueble(300, "forma10", "31", "0446-60", "0446-60", "TIBER", "650", "560", "720"),
    mueble(310, "forma10", "31", "1012-60", "1012-60", "TIBER", "650", "560", "720"),
    mueble(320, "forma10", "31", "1012-60", "1012-60", "NEVADA", "600", "600", "760"),
    mueble(330, "forma10", "31", "1012-60", "1012-60", "MIAMI", "650", "560", "720"),
    mueble(340, "xey10", "32", "3001-60", "3001-60", "NEVADA", "650", "580", "720"),
    mueble(350, "xey10", "32", "3001-60", "3001-60", "CAPRI", "650", "580", "720"),
    mueble(360, "vegasa10", "33", "KBR-60", "KBR-60", "NEVADA", "650", "560", "720"),
    mueble(370, "vegasa10", "33", "LPR-60", "LPR-60", "NEVADA", "600", "600", "760"),
]


def mundo(idioma="ESP", escena=None):
    return {
        "application": {
            "language": idioma,
            "moduleDir": MODULE,
            "files": {MODULE + "\\SPACE.INI": "[Local]\r\nCatalogsDir=" + CATS + "\r\n"},
            "dictionary": {"ENG": INGLES},
        },
        "catalogs": {
            CATS + "\\Cocinas\\cocinas.cat": cocinas(),
            CATS + "\\forma10.cat": fabricante(["0446-60", "1012-60"]),
            CATS + "\\xey10.cat": fabricante(["3001-60", "2501-60"]),
            CATS + "\\vegasa10.cat": fabricante(["KBR-60", "LPR-60"]),
        },
        "scene": copy.deepcopy(escena if escena is not None else ESCENA),
    }


def call(method, obj=None, cls="Plugin", **extra):
    c = {"class": cls, "method": method}
    if obj is not None:
        c["object"] = obj
    c.update(extra)
    return c


def escenario(calls, **world):
    s = mundo(**world)
    s["calls"] = calls
    return s


def solo(*ids):
    return [o for o in ESCENA if o["id"] in ids]


SAMPLES = {
    "01_inicio.json": escenario([call("OnAppStartAfter"), call("SceneCheck")]),
    "02_colocacion_permitida_modelo.json": escenario([call("OnObjectPlaceAfter", 110)]),
    "03_colocacion_permitida_excepcion.json": escenario([call("OnObjectPlaceAfter", 120)]),
    "04_colocacion_rechazada.json": escenario([call("OnObjectPlaceAfter", 100),
                                               call("OnObjectPlaceAfter", 130)]),
    "05_colocacion_rechazada_ingles.json": escenario([call("OnObjectPlaceAfter", 100)],
                                                     idioma="ENG"),
    "06_dialogo_atributos.json": escenario([call(
        "OnObjectAttributsDlgValidation", 100,
        attributeDialog={"150": " 700 ", "151": "720", "152": "600"})]),
    "07_escena.json": escenario([call("OnSceneGenericFinishesAfter")],
                                escena=solo(100, 110, 120, 130, 140, 300)),
    "08_programa_st.json": escenario([call("OnObjectPlaceAfter", 140)]),
    "09_asistente_forma.json": escenario([call("OnObjectPlaceAfter", 300, "Wizard"),
                                          call("OnObjectPlaceAfter", 310, "Wizard"),
                                          call("OnObjectPlaceAfter", 330, "Wizard"),
                                          call("OnObjectPlaceAfter", 320, "Wizard")]),
    "10_asistente_xey.json": escenario([call("OnObjectPlaceAfter", 350, "Wizard"),
                                        call("OnObjectPlaceAfter", 340, "Wizard")]),
    "11_asistente_vegasa.json": escenario([call("OnObjectPlaceAfter", 360, "Wizard"),
                                           call("OnObjectPlaceAfter", 370, "Wizard")]),
}

GOLDEN = {
    "entry/app_start.json": escenario([call("OnAppStartAfter")]),
    "entry/app_start_no_session.json": escenario([call("OnAppStartAfter", session=False)]),
    "entry/scene_check.json": escenario([call("SceneCheck"), call("SceneCheck", session=False)]),
    "entry/components_b.json": escenario([call("OnObjectComponentsB", 300),
                                          call("OnObjectComponentsB", 100),
                                          call("OnObjectComponents", 300, "Wizard")]),
    "rules/place_refused_width.json": escenario([call("OnObjectPlaceAfter", 100)]),
    "rules/place_refused_two_translated.json": escenario([call("OnObjectPlaceAfter", 130)],
                                                         idioma="ENG"),
    "rules/place_accepted_model.json": escenario([call("OnObjectPlaceAfter", 110)]),
    "rules/place_accepted_exception.json": escenario([call("OnObjectPlaceAfter", 120)]),
    "rules/place_no_session.json": escenario([call("OnObjectPlaceAfter", 100, session=False)]),
    "rules/place_st_notice.json": escenario([call("OnObjectPlaceAfter", 140)]),
    "rules/attribute_dialog.json": escenario([call(
        "OnObjectAttributsDlgValidation", 100,
        attributeDialog={"150": " 700 ", "151": "720", "152": "600"})]),
    "rules/object_finished.json": escenario([call("OnObjectFinishesAfter", 130)]),
    "rules/scene_summary.json": escenario([call("OnSceneGenericFinishesAfter")],
                                          escena=solo(100, 110, 120, 130, 140, 300)),
    "rules/scene_all_accepted.json": escenario([call("OnSceneGenericFinishesAfter")],
                                               escena=solo(110, 120, 140)),
    "rules/procedures.json": escenario([
        call("modeloValido", args=["@MOD", "M1", "script"]),
        call("modeloValido", args=["MOD", "M1", ""]),
        call("modeloValido", args=["MOD", "M1", "s"]),
    ]),
    "wizard/forma_exempt.json": escenario([call("OnObjectPlaceAfter", 300, "Wizard")]),
    "wizard/forma_width_rule.json": escenario([call("OnObjectPlaceAfter", 310, "Wizard")]),
    "wizard/forma_no_width_rule.json": escenario([call("OnObjectPlaceAfter", 330, "Wizard")]),
    "wizard/forma_depth_only.json": escenario([call("OnObjectPlaceAfter", 320, "Wizard")]),
    "wizard/xey_listed.json": escenario([call("OnObjectPlaceAfter", 350, "Wizard")]),
    "wizard/xey_depth_only.json": escenario([call("OnObjectPlaceAfter", 340, "Wizard")]),
    "wizard/vegasa_exempt.json": escenario([call("OnObjectPlaceAfter", 360, "Wizard")]),
    "wizard/vegasa_depth_only.json": escenario([call("OnObjectPlaceAfter", 370, "Wizard")]),
    "wizard/other_catalogue.json": escenario([call("OnObjectPlaceAfter", 100, "Wizard"),
                                              call("OnObjectPlaceAfter", 300, "Wizard",
                                                   session=False)]),
}


def asistente(*muebles):
    """A Wizard placement of each cabinet, in a scene of those cabinets only."""
    return escenario([call("OnObjectPlaceAfter", m["id"], "Wizard") for m in muebles],
                     escena=list(muebles))


# The Wizard's other cases: only the depth changed (nothing to do), an exempt code of Xey, a
# listed door model of Vegasa, an article without a line in table 3, and catalogue numbers
# that are empty or no number (no case at all).
GOLDEN.update({
    "wizard/forma_only_depth_changed.json": asistente(
        mueble(380, "forma10", "31", "1012-60", "1012-60", "NEVADA", "600", "600", "720")),
    "wizard/xey_exempt.json": asistente(
        mueble(390, "xey10", "32", "2501-60", "2501-60", "NEVADA", "650", "560", "720")),
    "wizard/vegasa_listed.json": asistente(
        mueble(400, "vegasa10", "33", "LPR-60", "LPR-60", "MUNICH", "650", "560", "720")),
    "wizard/no_article_line.json": asistente(
        mueble(410, "forma10", "31", "9999-60", "9999-60", "TIBER", "650", "560", "720")),
    "wizard/number_not_a_number.json": asistente(
        mueble(420, "forma10", "", "1012-60", "1012-60", "TIBER", "650", "560", "720"),
        mueble(430, "forma10", "abc", "1012-60", "1012-60", "TIBER", "650", "560", "720")),
})


def subcarpetas():
    """The catalogue directory only in [Remote]; the catalogue in two sub-folders (the one
    listed later wins) and an empty file of the same name in a third (not taken)."""
    s = escenario([call("OnObjectPlaceAfter", 100)])
    app = s["application"]
    app["files"] = {MODULE + "\\SPACE.INI": "[Remote]\r\nCatalogsDir=C:\\Red\r\n",
                    "C:\\Red\\Vacio\\cocinas.cat": {"size": 0}}
    s["catalogs"] = {"C:\\Red\\Antiguo\\cocinas.cat": cocinas(),
                     "C:\\Red\\Nuevo\\cocinas.cat": cocinas()}
    return s


GOLDEN["rules/catalogue_subfolders.json"] = subcarpetas()


def write(path, data):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as f:
        json.dump(data, f, ensure_ascii=False, indent=1)
        f.write("\n")


def main():
    for name, data in SAMPLES.items():
        write(os.path.join("samples", name), data)
    for name, data in GOLDEN.items():
        write(os.path.join("tests", "scenarios", name), data)


if __name__ == "__main__":
    main()
