"""The texts of the sample catalogues' table 2, by the TR_ key the plug-in reads them with:
make_samples.py and tests/scenarios/dialog/make_scenarios.py both take them from here, and
test_lint (TextKeys) checks that the keys are exactly those the plug-in reads."""

# The notices of the special-size rules; TR_9001 is the caption of every message.
MENSAJES = {
    "TR_9001": "Atención",
    "TR_9014": "Las medidas modificadas no están permitidas para este modelo de puerta.",
    "TR_9015": "La medida modificada no está permitida para este modelo de puerta.",
    "TR_9016": "Se ha restaurado la medida de catálogo.",
    "TR_9017": "Muebles con medidas no permitidas:",
    "TR_9021": "Modelo del programa ST: consulte los plazos de entrega.",
}

# The special-editing dialog's texts: captions, the names of the two kinds of diagonal, and
# its messages with their caption.
DIALOGO = {
    "TR_0001": "Edición de especiales",
    "TR_0002": "Costados", "TR_0003": "Frentes", "TR_0004": "Equip. interior",
    "TR_0005": "Otros", "TR_0006": "Tipos de especiales", "TR_0007": "Diagonales",
    "TR_0008": "Encastres de pilar",
    "TR_0009": "ANCHO", "TR_0010": "ALTO", "TR_0011": "FONDO", "TR_0012": "ANCHO - ALTO",
    "TR_0013": "ANCHO - FONDO", "TR_0014": "ALTO - FONDO", "TR_0015": "ANCHO - ALTO - FONDO",
    "TR_0016": "Medidas", "TR_0017": "Ancho:", "TR_0018": "Alto:", "TR_0019": "Fondo:",
    "TR_0021": "Cancelar valores",
    "TR_0022": "Seleccione el tipo de especial a modificar.",
    "TR_0023": "Seleccione la forma de la diagonal.",
    "TR_0024": "No Disponible", "TR_0027": "Aceptar Componentes",
    "TR_0028": "Salir sin guardar", "TR_0037": "Vista previa:", "TR_0038": "Valores:",
    "TR_0043": "Este mueble no admite diagonal.", "TR_0044": "Medidas por defecto",
    "TR_0046": "Diagonal por longitudes", "TR_0047": "Diagonal por ángulo",
    "TR_9001": MENSAJES["TR_9001"],
    "TR_9003": "Las medidas especiales no han cambiado:",
    "TR_9004": "Medidas sin cambio",
    "TR_9006": "Encastres de pilar",
    "TR_9007": "Diagonal",
    "TR_9010": "Un valor de encastre supera su máximo.",
    "TR_9011": "Falta un valor de encastre.",
    "TR_9018": "Ancho fuera de límites: ",
    "TR_9019": "Alto fuera de límites: ",
    "TR_9020": "Fondo fuera de límites: ",
}
