-- The tables of the delivered database before the upgrade that runs at every start; a statement each,
-- ended by a semicolon. What the upgrade adds (columns, tables, indexes) does not stand here.

CREATE TABLE Adolescente (paciente LONG, aspecto TEXT(100), Alarma BIT, observaciones MEMO);
CREATE INDEX paciente ON Adolescente (paciente);

CREATE TABLE Alarmas (idPaciente LONG, Objeto TEXT(50), Especialidad TEXT(50), Tema TEXT(50),
    Color TEXT(1));
CREATE INDEX idPaciente ON Alarmas (idPaciente);

CREATE TABLE Alergia (paciente LONG, [Desarrollo y valores] TEXT(100), Comienzo TEXT(100),
    Evolucion TEXT(100), Sintomas TEXT(100), Frecuencia TEXT(100), Duracion TEXT(100), Horario TEXT(100),
    [Epoca del año] TEXT(100), Lugar TEXT(100), Desencadenantes TEXT(100), Alimentos TEXT(100),
    Inhalantes TEXT(100), Contactantes TEXT(100), Medicamentos TEXT(100), Insectos TEXT(100),
    [Tratamientos previos] TEXT(100), Respuesta TEXT(100), Eosinofilos TEXT(100), [Ige total] TEXT(100),
    [Ige especifica] TEXT(100), [Prick test] TEXT(100), Intradermorreaccion TEXT(100),
    Espirometria TEXT(100), Rinoscopia TEXT(100), Radiografia TEXT(100), Piel TEXT(100), Ojos TEXT(100),
    Nariz TEXT(100), Bronquios TEXT(100), Digestivo TEXT(100), [Otros sintomas] TEXT(100),
    Resultado TEXT(100), Conducta TEXT(100), Observaciones TEXT(100), Asma BIT, Rinitis BIT,
    Conjuntivitis BIT, [Dermatitis atopica] BIT, Urticaria BIT, Angioedema BIT, Anafilaxia BIT, Eccema BIT);
CREATE UNIQUE INDEX PrimaryKey ON Alergia (paciente) WITH PRIMARY;

CREATE TABLE Algorritmos (idAlgorritmo COUNTER, idPadre LONG, Titulo TEXT(255), RutaArchivo TEXT(255),
    Tipo TEXT(20));
CREATE INDEX idPadre ON Algorritmos (idPadre);

CREATE TABLE Alimentacion (paciente LONG, Alimento TEXT(60), Tiempo TEXT(30), tolerado BIT, fecha DATE,
    observaciones MEMO);
CREATE INDEX paciente ON Alimentacion (paciente);
CREATE INDEX PacAlimenta ON Alimentacion (paciente, Alimento);

CREATE TABLE Analisis (paciente LONG, Fecha DATE, Hora DATE, Bioquimico TEXT(100), Descripcion TEXT(100),
    Hemoglobina TEXT(255), Hematocrito TEXT(255), [Glóbulos rojos] TEXT(255), [Glóbulos blancos] TEXT(255),
    [Neutrófilos] TEXT(255), Linfocitos TEXT(255), [Eosinófilos] TEXT(255), Plaquetas TEXT(255),
    Reticulocitos TEXT(255), [Eritrosedimentación] TEXT(255), [Proteína C reactiva] TEXT(255),
    [Grupo sanguíneo y factor Rh] TEXT(255), [Coombs directa] TEXT(255), [Tiempo de protrombina] TEXT(255),
    KPTT TEXT(255), Ferremia TEXT(255), Ferritina TEXT(255), [Vitamina B12] TEXT(255),
    [Ácido fólico] TEXT(255), [Vitamina D] TEXT(255), Glucemia TEXT(255), [Hemoglobina glicosilada] TEXT(255),
    Uremia TEXT(255), Creatinina TEXT(255), [Ácido úrico] TEXT(255), Sodio TEXT(255), Potasio TEXT(255),
    Calcio TEXT(255), [Fósforo] TEXT(255), [pH venoso] TEXT(255), Bicarbonato TEXT(255),
    [Bilirrubina total] TEXT(255), [Bilirrubina directa] TEXT(255), TGO TEXT(255), TGP TEXT(255),
    [Fosfatasa alcalina] TEXT(255), [Gamma GT] TEXT(255), CPK TEXT(255), [Proteínas totales] TEXT(255),
    [Albúmina] TEXT(255), [Colesterol total] TEXT(255), [Triglicéridos] TEXT(255), TSH TEXT(255),
    [T4 libre] TEXT(255), [Anticuerpos antitransglutaminasa IgA] TEXT(255), IgA TEXT(255),
    [IgE total] TEXT(255), [Complemento C3] TEXT(255), ASTO TEXT(255), VDRL TEXT(255), HIV TEXT(255),
    [Hepatitis B antígeno de superficie] TEXT(255), [Toxoplasmosis IgG] TEXT(255), Chagas TEXT(255),
    Monotest TEXT(255), [Orina completa] TEXT(255), Urocultivo TEXT(255), [Proteinuria de 24 horas] TEXT(255),
    Coprocultivo TEXT(255), [Parasitológico de materia fecal] TEXT(255),
    [Sangre oculta en materia fecal] TEXT(255), [Test de Graham] TEXT(255), [Hisopado de fauces] TEXT(255),
    [Panel viral respiratorio] TEXT(255), [Pesquisa neonatal] TEXT(255), Plombemia TEXT(255));
CREATE INDEX paciente ON Analisis (paciente);
CREATE INDEX PacFecha ON Analisis (paciente, Fecha);

CREATE TABLE Antecedentes (Paciente LONG, Pariente TEXT(50), Afeccion TEXT(255));
CREATE INDEX paciente ON Antecedentes (Paciente);

CREATE TABLE [Antecedentes Personales] (paciente LONG, Antecedente TEXT(255), [Caracter Permanente] BIT,
    [Caracter Paroxistica] BIT, [Caracter Estacional] BIT, [Caracter de la enfermedad] TEXT(255), AlCon BIT,
    AlIn BIT, AlAl BIT, AlMed BIT, [Antecedentes Infancia] MEMO, [Antecedentes Profesion] MEMO,
    [Antecedentes Edad Adulta] MEMO, [Antecedentes Pubertad] MEMO, [Antecedentes Colaterales] MEMO,
    [Antecedentes Abuelos] MEMO, [Antecedentes Padres] MEMO, Colchon TEXT(100), Almohada TEXT(100),
    Cortinados TEXT(100), Pieles TEXT(100), Caballos BIT, Perros BIT, Gatos BIT, Aves BIT,
    Paredes TEXT(100), Pisos TEXT(100), Alfombras TEXT(100), Calefaccion TEXT(100), Insecticidas TEXT(100),
    Barrido TEXT(100), Perfumes TEXT(100), [Factores Psicologicos] TEXT(100), Vecindad TEXT(100),
    [Cambios Atmosfericos] TEXT(100), [Agentes Fisicos] TEXT(100), [Cosmeticos y tinturas] TEXT(100),
    [Diag Inhalantes] BIT, [Diag Alimenticio] BIT, [Diag Endocrino] BIT, [Diag Polenes] BIT,
    [Diag Parasitario] BIT, [Diag Insectos] BIT, [Diag Bacteriano] BIT, [Diag Medicamentos] BIT,
    [Diag Fisicos] BIT, [Diag Micologico] BIT, [Diag Contacto] BIT, [Diag Autoinmune] BIT, [In 1] TEXT(10),
    [In 2] TEXT(10), [In 3] TEXT(10), [In 4] TEXT(10), [In 5] TEXT(10), [In 6] TEXT(10), [In 7] TEXT(10),
    [In 8] TEXT(10), [In 9] TEXT(10), [In 10] TEXT(10), [In 11] TEXT(10), [In 12] TEXT(10),
    [In 13] TEXT(10), [In 14] TEXT(10), [In 15] TEXT(10), [In 16] TEXT(10), [In 17] TEXT(10),
    [In 18] TEXT(10), [In 19] TEXT(10), [In 20] TEXT(10), [In 21] TEXT(10), [In 22] TEXT(10),
    [In 23] TEXT(10), [In 24] TEXT(10), [Po 1] TEXT(10), [Po 2] TEXT(10), [Po 3] TEXT(10), [Po 4] TEXT(10),
    [Po 5] TEXT(10), [Po 6] TEXT(10), [Po 7] TEXT(10), [Po 8] TEXT(10), [Po 9] TEXT(10), [Po 10] TEXT(10),
    [Po 11] TEXT(10), [Po 12] TEXT(10), [Po 13] TEXT(10), [Po 14] TEXT(10), [Po 15] TEXT(10),
    [Po 16] TEXT(10), [Po 17] TEXT(10), [Po 18] TEXT(10), [Po 19] TEXT(10), [Po 20] TEXT(10),
    [Po 21] TEXT(10), [Po 22] TEXT(10), [Po 23] TEXT(10), [Po 24] TEXT(10), [Alergia Bact 1] TEXT(10),
    [Alergia Bact 2] TEXT(10), [Alergia Bact 3] TEXT(10), [Alergia Bact 4] TEXT(10),
    [Alergia Bact 5] TEXT(10), [Alergia Bact 6] TEXT(10), [Alergia Bact 7] TEXT(10),
    [Alergia Bact 8] TEXT(10), [Alergia Bact 9] TEXT(10), [Alergia Bact 10] TEXT(10),
    [Alergia Bact 11] TEXT(10), [Alergia Bact 12] TEXT(10), [Alergia Bact 13] TEXT(10),
    [Alergia Bact 14] TEXT(10), [Alergia Bact 15] TEXT(10), [Alergia Bact 16] TEXT(10),
    [Alergia Bact 17] TEXT(10), [Alergia Bact 18] TEXT(10), [Alergia Bact 19] TEXT(10),
    [Alergia Bact 20] TEXT(10), [Alergia Bact 21] TEXT(10), [Alergia Bact 22] TEXT(10),
    [Alergia Bact 23] TEXT(10), [Alergia Bact 24] TEXT(10), [Alergia Alim 1] TEXT(10),
    [Alergia Alim 2] TEXT(10), [Alergia Alim 3] TEXT(10), [Alergia Alim 4] TEXT(10),
    [Alergia Alim 5] TEXT(10), [Alergia Alim 6] TEXT(10), [Alergia Alim 7] TEXT(10),
    [Alergia Alim 8] TEXT(10), [Alergia Alim 9] TEXT(10), [Alergia Alim 10] TEXT(10),
    [Alergia Alim 11] TEXT(10), [Alergia Alim 12] TEXT(10), [Alergia Alim 13] TEXT(10),
    [Alergia Alim 14] TEXT(10), [Alergia Alim 15] TEXT(10), [Alergia Alim 16] TEXT(10),
    [Alergia Alim 17] TEXT(10), [Alergia Alim 18] TEXT(10), [Alergia Alim 19] TEXT(10),
    [Alergia Alim 20] TEXT(10), [Alergia Alim 21] TEXT(10), [Alergia Alim 22] TEXT(10),
    [Alergia Alim 23] TEXT(10), [Alergia Alim 24] TEXT(10), [Alergia Cont 1] TEXT(10),
    [Alergia Cont 2] TEXT(10), [Alergia Cont 3] TEXT(10), [Alergia Cont 4] TEXT(10),
    [Alergia Cont 5] TEXT(10), [Alergia Cont 6] TEXT(10), [Alergia Cont 7] TEXT(10),
    [Alergia Cont 8] TEXT(10), [Alergia Cont 9] TEXT(10), [Alergia Cont 10] TEXT(10),
    [Alergia Cont 11] TEXT(10), [Alergia Cont 12] TEXT(10), [Alergia Cont 13] TEXT(10),
    [Alergia Cont 14] TEXT(10), [Alergia Cont 15] TEXT(10), [Alergia Cont 16] TEXT(10),
    [Alergia Cont 17] TEXT(10), [Alergia Cont 18] TEXT(10), [Alergia Cont 19] TEXT(10),
    [Alergia Cont 20] TEXT(10), [Alergia Cont 21] TEXT(10), [Alergia Cont 22] TEXT(10),
    [Alergia Cont 23] TEXT(10), [Alergia Cont 24] TEXT(10), [Hongos 1] TEXT(10), [Hongos 2] TEXT(10),
    [Hongos 3] TEXT(10), [Hongos 4] TEXT(10), [Hongos 5] TEXT(10), [Hongos 6] TEXT(10), [Hongos 7] TEXT(10),
    [Hongos 8] TEXT(10), [Hongos 9] TEXT(10), [Hongos 10] TEXT(10), [Hongos 11] TEXT(10),
    [Hongos 12] TEXT(10), [Hongos 13] TEXT(10), [Hongos 14] TEXT(10), [Hongos 15] TEXT(10),
    [Hongos 16] TEXT(10), [Hongos 17] TEXT(10), [Hongos 18] TEXT(10), [Hongos 19] TEXT(10),
    [Hongos 20] TEXT(10), [Hongos 21] TEXT(10), [Hongos 22] TEXT(10), [Hongos 23] TEXT(10),
    [Hongos 24] TEXT(10), [Alergia Medic 1] TEXT(10), [Alergia Medic 2] TEXT(10),
    [Alergia Medic 3] TEXT(10), [Alergia Medic 4] TEXT(10), [Alergia Medic 5] TEXT(10),
    [Alergia Medic 6] TEXT(10), [Alergia Medic 7] TEXT(10), [Alergia Medic 8] TEXT(10),
    [Alergia Medic 9] TEXT(10), [Alergia Medic 10] TEXT(10), [Alergia Medic 11] TEXT(10),
    [Alergia Medic 12] TEXT(10), [Alergia Medic 13] TEXT(10), [Alergia Medic 14] TEXT(10),
    [Alergia Medic 15] TEXT(10), [Alergia Medic 16] TEXT(10), [Alergia Medic 17] TEXT(10),
    [Alergia Medic 18] TEXT(10), [Alergia Medic 19] TEXT(10), [Alergia Medic 20] TEXT(10),
    [Alergia Medic 21] TEXT(10), [Alergia Medic 22] TEXT(10), [Alergia Medic 23] TEXT(10),
    [Alergia Medic 24] TEXT(10), [Alergia Insectos 1] TEXT(10), [Alergia Insectos 2] TEXT(10),
    [Alergia Insectos 3] TEXT(10), [Alergia Insectos 4] TEXT(10), [Alergia Insectos 5] TEXT(10),
    [Alergia Insectos 6] TEXT(10), [Alergia Insectos 7] TEXT(10), [Alergia Insectos 8] TEXT(10),
    [Alergia Insectos 9] TEXT(10), [Alergia Insectos 10] TEXT(10), [Alergia Insectos 11] TEXT(10),
    [Alergia Insectos 12] TEXT(10), [Alergia Insectos 13] TEXT(10), [Alergia Insectos 14] TEXT(10),
    [Alergia Insectos 15] TEXT(10), [Alergia Insectos 16] TEXT(10), [Alergia Insectos 17] TEXT(10),
    [Alergia Insectos 18] TEXT(10), [Alergia Insectos 19] TEXT(10), [Alergia Insectos 20] TEXT(10),
    [Alergia Insectos 21] TEXT(10), [Alergia Insectos 22] TEXT(10), [Alergia Insectos 23] TEXT(10),
    [Alergia Insectos 24] TEXT(10));
CREATE INDEX paciente ON [Antecedentes Personales] (paciente);

CREATE TABLE AntecedentesCardiologicos (idPaciente LONG, [Historia familiar de Enfermedad Cardiaca] BIT,
    [Enfermedad Cardiaca anterior] BIT, Reumatismo BIT, Hipertension BIT, Claudicacion BIT, Flebitis BIT,
    Edema BIT, Sincope BIT, Palpitaciones BIT, [Dolor o Molestia en el Pecho] BIT,
    [Ortopnea Disnea nocturna paroxistica] BIT, [Nivel Inadecuado de Ejercicio] BIT, Otros MEMO);
CREATE UNIQUE INDEX PrimaryKey ON AntecedentesCardiologicos (idPaciente) WITH PRIMARY;

CREATE TABLE AntecPsicoFliares (Descripcion TEXT(100));
CREATE INDEX Descripcion ON AntecPsicoFliares (Descripcion);

CREATE TABLE Binomio (Paciente LONG, Descripcion TEXT(60), Resultado TEXT(60));
CREATE INDEX paciente ON Binomio (Paciente);
CREATE INDEX PacDes ON Binomio (Paciente, Descripcion);

CREATE TABLE Caja (Fecha DATE, Hora TEXT(5), Cuenta TEXT(50), Detalle TEXT(255), Entrada CURRENCY,
    Salida CURRENCY, Tipo TEXT(10));
CREATE INDEX Fecha ON Caja (Fecha);

CREATE TABLE CalRiesgoGestacional (idpaciente LONG, Valor TEXT(255));
CREATE UNIQUE INDEX PrimaryKey ON CalRiesgoGestacional (idpaciente) WITH PRIMARY;

CREATE TABLE CalVacunas (Descripcion TEXT(50), detalle TEXT(100), Dosis TEXT(30), Vacuna TEXT(20),
    orden LONG, TemasRelacionados MEMO, [Tiempo en meses] LONG);
CREATE INDEX orden ON CalVacunas (orden);

CREATE TABLE CamposImport (CampoEnAfiliado TEXT(64), PosicionInicial LONG, Tamano LONG, CampoIndex BIT);

-- The letters about doses that are late, while they are shown; `Lote` parts those of one station from another's.
CREATE TABLE CartasVacunas (Lote TEXT(40), Paciente LONG, Renglon LONG, Vacuna TEXT(100), Dosis TEXT(30),
    Atraso TEXT(60));
CREATE INDEX Lote ON CartasVacunas (Lote);

CREATE TABLE Categorias (idClasificacion TEXT(2), idGrupo TEXT(4), idCategoria TEXT(5),
    Categoria TEXT(255));
CREATE UNIQUE INDEX PrimaryKey ON Categorias (idCategoria) WITH PRIMARY;
CREATE INDEX idGrupo ON Categorias (idGrupo);

CREATE TABLE Clasificacion (idClasificacion TEXT(2), Clasificacion TEXT(255));
CREATE UNIQUE INDEX PrimaryKey ON Clasificacion (idClasificacion) WITH PRIMARY;

CREATE TABLE ClasImagenes (Nombre TEXT(60));
CREATE INDEX Nombre ON ClasImagenes (Nombre);

CREATE TABLE ClasPersonales (Nombre TEXT(60));
CREATE INDEX Nombre ON ClasPersonales (Nombre);

CREATE TABLE ClasTratamiento (Nombre TEXT(60));
CREATE INDEX Nombre ON ClasTratamiento (Nombre);

CREATE TABLE Complementos (idComplemento COUNTER, idPaciente LONG, Fecha DATE, Examen TEXT(100),
    RutaArchivoTexto TEXT(255));
CREATE INDEX idPaciente ON Complementos (idPaciente);

CREATE TABLE Consulta (paciente LONG, [nombre del paciente] TEXT(100), Fecha DATE, Hora DATE,
    [Lugar de Consulta] TEXT(30), Tipo TEXT(30), Motivo MEMO, Peso DOUBLE, Talla DOUBLE,
    [Perimetro cefalico] DOUBLE, [Estado General] TEXT(255), Alimentacion TEXT(255), Edad LONG,
    Sexo TEXT(10), Mutual TEXT(60), Dr TEXT(50), Monto CURRENCY, Pulso TEXT(20), temperatura TEXT(20),
    Respiracion TEXT(20), EspecialidadPLUS TEXT(30), [sintoma 1] TEXT(255), [sintoma 2] TEXT(255),
    [sintoma 3] TEXT(255), [sintoma 4] TEXT(255), [sintoma 5] TEXT(255), [Diagnostico 1] TEXT(255),
    [Diagnostico 2] TEXT(255), [Diagnostico 3] TEXT(255), [Diagnostico 4] TEXT(255),
    [Diagnostico 5] TEXT(255), [Tratamiento 1] TEXT(255), [Tratamiento 2] TEXT(255),
    [Tratamiento 3] TEXT(255), [Tratamiento 4] TEXT(255), [Tratamiento 5] TEXT(255), idSintoma1 LONG,
    idSintoma2 LONG, idSintoma3 LONG, idSintoma4 LONG, idSintoma5 LONG, idDiagnostico1 LONG,
    idDiagnostico2 LONG, idDiagnostico3 LONG, idDiagnostico4 LONG, idDiagnostico5 LONG, idTratamiento1 LONG,
    idTratamiento2 LONG, idTratamiento3 LONG, idTratamiento4 LONG, idTratamiento5 LONG);
CREATE INDEX paciente ON Consulta (paciente);
CREATE INDEX Fecha ON Consulta (Fecha);
CREATE INDEX PacFecha ON Consulta (paciente, Fecha);

CREATE TABLE ConsultaCardiologia (idConsulta COUNTER, idpaciente LONG, Fecha DATE,
    [Electro - Imagen] TEXT(255), [Electro - VELOCIDAD] TEXT(30), [Electro - RITMO] TEXT(30),
    [Electro - INTERV PQ] TEXT(30), [Electro - INTERV QRS] TEXT(30), [Electro - INTERV QT] TEXT(30),
    [Electro - Interpretacion] MEMO, [Pulsos Perifericos - ICAROT] TEXT(30),
    [Pulsos Perifericos - DCAROT] TEXT(30), [Pulsos Perifericos - IHUMER] TEXT(30),
    [Pulsos Perifericos - DHUMER] TEXT(30), [Pulsos Perifericos - IRADIA] TEXT(30),
    [Pulsos Perifericos - DRADIA] TEXT(30), [Pulsos Perifericos - AORTA] TEXT(30),
    [Pulsos Perifericos - IFEMOR] TEXT(30), [Pulsos Perifericos - DFEMOR] TEXT(30),
    [Pulsos Perifericos - IPOPL] TEXT(30), [Pulsos Perifericos - DPOPL] TEXT(30),
    [Pulsos Perifericos  IPT] TEXT(30), [Pulsos Perifericos - DPT] TEXT(30),
    [Pulsos Perifericos - IPP] TEXT(30), [Pulsos Perifericos - DPP] TEXT(30), [Focos - PVY IS1] TEXT(30),
    [Focos - PVY IS2] TEXT(30), [Focos - PAC IS1] TEXT(30), [Focos - PAC IS2] TEXT(30),
    [Focos - PVY ES1] TEXT(30), [Focos - PVY ES2] TEXT(30), [Focos - PAC ES1] TEXT(30),
    [Focos - PAC ES2] TEXT(30), [Focos - PP IS1] TEXT(30), [Focos - PP IS2] TEXT(30),
    [Focos - A IS1] TEXT(30), [Focos - A IS2] TEXT(30), [Focos - PP ES1] TEXT(30),
    [Focos - PP ES2] TEXT(30), [Focos - A ES1] TEXT(30), [Focos - A ES2] TEXT(30),
    [Presion venosa yugular cm] TEXT(30), [Presion venosa yugular gr] TEXT(30),
    [Pulsaciones venosas yugulares] TEXT(100), [Pulso carotideo] TEXT(100), [Impulso del apice] TEXT(100),
    [Impulso paraesternal] TEXT(100), [Pulsacion de la arteria pulmonar] TEXT(100),
    [Primer ruido cardiaco] TEXT(100), [Segundo ruido cardiaco] TEXT(100),
    [Tercer ruido cardiaco] TEXT(100), [Cuarto ruido cardiaco] TEXT(100), Chasquido TEXT(100),
    [Murmullo sistolico] TEXT(100), [Murmullo diastolico] TEXT(100), Edema TEXT(100),
    [Edema Pierna derecha 1] BIT, [Edema Pierna izquierda 1] BIT, [Edema Pierna derecha 2] BIT,
    [Edema Pierna izquierda 2] BIT, [Edema Pierna derecha 3] BIT, [Edema Pierna izquierda 3] BIT,
    [Edema Pierna derecha 4] BIT, [Edema Pierna izquierda 4] BIT, [Estructura del torax] TEXT(255),
    [Movimiento del torax] TEXT(255), [Auscultacion del torax] TEXT(255), [Percusion del torax] TEXT(255),
    [Otros Torax] TEXT(255));
CREATE INDEX idPaciente ON ConsultaCardiologia (idpaciente);

CREATE TABLE ConsultaGineco (idExamen COUNTER, idpaciente LONG, Fecha DATE, Examen TEXT(60), Detalle MEMO,
    Resultados MEMO, Observaciones MEMO);
CREATE INDEX idPaciente ON ConsultaGineco (idpaciente);

CREATE TABLE ConsultaOftalmo (idConsulta LONG, paciente LONG, Fecha DATE, motivo MEMO, Antecedentes MEMO,
    diagnostico MEMO, aguVisOdSC TEXT(30), aguVisOdCSC TEXT(30), aguVisOdCCC TEXT(30), aguVisOdCE TEXT(30),
    aguVisOiSC TEXT(30), aguVisOiCSC TEXT(30), aguVisOiCCC TEXT(30), aguVisOiCE TEXT(30),
    tensionocuod TEXT(20), tensionocuoi TEXT(20), periferia MEMO, biomicroscopia MEMO, fondodeojo MEMO,
    r_p MEMO, antusalejOD TEXT(60), antusalejOI TEXT(60), antusacerOD TEXT(60), antusacerOi TEXT(60),
    antusaotrOD TEXT(60), antusaotrOi TEXT(60), antreclejOD TEXT(60), antreccerOD TEXT(60),
    antrecintOD TEXT(60), antreclejOi TEXT(60), antreccerOi TEXT(60), antrecintOi TEXT(60),
    topOdAgu TEXT(60), topOiAgu TEXT(60), refraccion_OD MEMO, refraccion_OI MEMO, refraccion_M MEMO,
    Auxiliar1 TEXT(60), Auxiliar2 TEXT(60), Auxiliar3 TEXT(60), Auxiliar4 TEXT(60), testAmsler TEXT(10),
    Lectura TEXT(20), Estra_TT1 TEXT(20), Estra_TT2 TEXT(20), Estra_TT3 TEXT(20), Estra_TT4 TEXT(20),
    Estra_TT5 TEXT(20), Estra_TT6 TEXT(20), Estra_TT7 TEXT(20), Estra_TT8 TEXT(20), Estra_TT9 TEXT(20),
    Estra_TL1 TEXT(20), Estra_TL2 TEXT(20), Estra_TL3 TEXT(20), Estra_TL4 TEXT(20), Estra_TL5 TEXT(20),
    Estra_TL6 TEXT(20), Estra_TL7 TEXT(20), Estra_TL8 TEXT(20), Estra_TL9 TEXT(20), Estra_LT1 TEXT(20),
    Estra_LT2 TEXT(20), Estra_LT3 TEXT(20), Estra_LT4 TEXT(20), Estra_LT5 TEXT(20), Estra_LT6 TEXT(20),
    Estra_LT7 TEXT(20), Estra_LT8 TEXT(20), Estra_LT9 TEXT(20), Estra_LL1 TEXT(20), Estra_LL2 TEXT(20),
    Estra_LL3 TEXT(20), Estra_LL4 TEXT(20), Estra_LL5 TEXT(20), Estra_LL6 TEXT(20), Estra_LL7 TEXT(20),
    Estra_LL8 TEXT(20), Estra_LL9 TEXT(20), Estra_m TEXT(60), Bielch1 TEXT(60), Bielch2 TEXT(60),
    Estra_Diag MEMO, tensgolod TEXT(255), tensgoloi TEXT(255));
CREATE INDEX paciente ON ConsultaOftalmo (paciente);
CREATE INDEX idConsulta ON ConsultaOftalmo (idConsulta);

CREATE TABLE Cuentas (Descripcion TEXT(50), Observaciones TEXT(255));
CREATE UNIQUE INDEX PrimaryKey ON Cuentas (Descripcion) WITH PRIMARY;
CREATE INDEX Descripcion ON Cuentas (Descripcion);

CREATE TABLE DetalleComplementos (idComplemento LONG, Fecha DATE, RutaArchivoImagen TEXT(255));
CREATE INDEX idComplemento ON DetalleComplementos (idComplemento);

CREATE TABLE DetExamenGinecoGraf (idExamen LONG, indice LONG, X LONG, Y LONG);
CREATE INDEX idExamen ON DetExamenGinecoGraf (idExamen);

CREATE TABLE [Diagnostico RN] (paciente LONG, Signo TEXT(255), Patologia TEXT(255));
CREATE INDEX paciente ON [Diagnostico RN] (paciente);

CREATE TABLE Diagnosticos (idCategoria TEXT(5), idDiagnostico TEXT(6), descripcion TEXT(255),
    Estadistica LONG);
CREATE UNIQUE INDEX PrimaryKey ON Diagnosticos (idDiagnostico) WITH PRIMARY;
CREATE INDEX idCategoria ON Diagnosticos (idCategoria);
CREATE INDEX Descripcion ON Diagnosticos (descripcion);

CREATE TABLE DIAGPERSONALES (Descripcion TEXT(255), Clasificacion TEXT(60), Observaciones TEXT(255),
    Sintomas MEMO, Estadistica LONG);
CREATE INDEX Descripcion ON DIAGPERSONALES (Descripcion);
CREATE INDEX clasificacion ON DIAGPERSONALES (Clasificacion);

CREATE TABLE DisTurnos (idProfesional LONG, Fecha DATE, desde1 TEXT(5), hasta1 TEXT(5), desde2 TEXT(5),
    hasta2 TEXT(5));
CREATE INDEX idProfesional ON DisTurnos (idProfesional);

-- The true ages of a dose, in days; what is not known is Null. `grupo` tells for whom: empty for all, or the days of
-- birth that it is for.
CREATE TABLE EdadesVacunas (Vacuna TEXT(20), Dosis TEXT(30), edad_recomendada_dias LONG, edad_minima_dias LONG,
    edad_maxima_dias LONG, intervalo_minimo_dias LONG, grupo TEXT(255));
CREATE INDEX VacunaDosis ON EdadesVacunas (Vacuna, Dosis);

CREATE TABLE Estudios (Paciente LONG, Fecha DATE, Tipo TEXT(100), Especialista TEXT(100), Resultados MEMO,
    Observaciones MEMO);
CREATE INDEX paciente ON Estudios (Paciente);
CREATE INDEX PacFecha ON Estudios (Paciente, Fecha);

CREATE TABLE Eventos (Proceso TEXT(60), Usuario TEXT(50), Fecha DATE, Hora TEXT(5), Suceso TEXT(255));
CREATE INDEX Usuario ON Eventos (Usuario, Fecha);

CREATE TABLE [Examen Fisico] (paciente LONG, [dato positivo] TEXT(255));
CREATE INDEX paciente ON [Examen Fisico] (paciente);

CREATE TABLE ExamenGO (idPaciente LONG, Fecha DATE, Examen TEXT(60), Detalle MEMO, Obs_Menopausia MEMO,
    Obs_Mastologia MEMO, Obs_Infecciosas MEMO, Obs_Esterilidad MEMO, Obs_GinInfJuvenil MEMO,
    Obs_EnfVaginaVulva MEMO, Obs_EnfUteroAnexos MEMO, Obs_Oncologia MEMO);
CREATE INDEX idPaciente ON ExamenGO (idPaciente);

CREATE TABLE Gestaciones (idPaciente LONG, Gestacion LONG, Ciclo TEXT(30), Altura DOUBLE,
    [Peso Inicial] DOUBLE, [IG Semanas] LONG, [IG Dias] LONG, [IG Eco Semanas] LONG, [IG Eco Dias] LONG,
    [IG Eco 2 Semanas] LONG, [IG Eco 2 Dias] LONG, Detalles MEMO, Dum DATE, [DPP Eco] DATE,
    [Fecha Eco] DATE, [Tipo Parto] TEXT(60), [Nombre RN] TEXT(60), [Fecha Parto] DATE,
    [Tipo Parto 2] TEXT(60), [Nombre RN 2] TEXT(60), [Fecha Parto 2] DATE);
CREATE INDEX idPaciente ON Gestaciones (idPaciente);

CREATE TABLE Gineco (idPaciente LONG, [Ciclos Menstruales] TEXT(60), [Ciclos Cantidad] TEXT(60),
    [Ciclos Dolor] TEXT(60), [Metodo Anticonceptivo] TEXT(60), Pets TEXT(30), Menarca TEXT(30),
    Gestas TEXT(30), Abortos TEXT(30), DUM DATE, [Primera Relacion] TEXT(60), Cauterizaciones TEXT(60),
    [Ultimo Examen Mamas] TEXT(60), [Ultima Mamografia] TEXT(60), Pilosidad TEXT(255), Labios TEXT(255),
    Clitoris TEXT(255), [Meato Uretral] TEXT(255), [Gl Bartholin] TEXT(255), Himen TEXT(255),
    [Estatica Pelvica] TEXT(255), [Incontinencia Urinaria] TEXT(255), Abdomen TEXT(255), Vagina TEXT(255),
    Colon TEXT(255), [Muco Cervical] TEXT(255), [Toco Vagina] TEXT(255), [Toco Colon] TEXT(255),
    [Toco Anexo D] TEXT(255), [Toco Anexo E] TEXT(255), [Toco Recto] TEXT(255),
    [Toco Parametrios] TEXT(255), [Nro Lactancias] TEXT(255), [Duracion Lactancias] TEXT(255),
    [Traumatismos Mamarios] TEXT(255), [Otros Problemas Mamarios] TEXT(255),
    [Inspeccion Estatica Mamas] TEXT(255), [Inspeccion Dinamica Mamas] TEXT(255), [Palpado Mamas] TEXT(255),
    [Papila y Aureola] TEXT(255), Axilas TEXT(255), [Observaciones Mamas] MEMO);
CREATE UNIQUE INDEX PrimaryKey ON Gineco (idPaciente) WITH PRIMARY;

CREATE TABLE Grupos (idClasificacion TEXT(2), idGrupo TEXT(4), Grupo TEXT(255));
CREATE UNIQUE INDEX PrimaryKey ON Grupos (idGrupo) WITH PRIMARY;
CREATE INDEX idClasificacion ON Grupos (idClasificacion);

CREATE TABLE HC_Deportiva (idPaciente LONG, Fecha DATE, [Desde que Edad Practica Deportes] TEXT(30),
    [Deportes Practicados] TEXT(255), [Deportes Actuales] TEXT(255), [Dias Por Semana que Entrena] TEXT(30),
    [Consume Vitaminas] BIT, [Consume Aminoacidos] BIT, [Consume Energizantes] BIT, [Consume Hormonas] BIT,
    [Inmunizado contra Tetanos] BIT, [Inmunizado contra Tuberculosis] BIT, [Inmunizado contra Neumonia] BIT,
    [Inmunizado contra Gripe] BIT, [Inmunizado contra Hepatitis B] BIT, [Inmunizado contra Meningitis] BIT,
    [Enfermedades Congenitas] BIT, [Traumatismos u Operaciones] BIT, [Golpes Fuertes] BIT,
    [Luxaciones y Otras Lesiones] BIT, [Fracturas o Esguinces] BIT, [Enfermedades Articulares] BIT,
    [Enfermedades de los Huesos] BIT, [Enfermedades Musculares] BIT, [Fiebre Reumatica] BIT,
    [Artritis o Artrosis] BIT, [Enfermedades Respiratorias] BIT, [Enfermedades Alergicas] BIT,
    [Sinusitis Otitis Amigdalitis] BIT, Asma BIT, [Neumonia o Bronconeumonia] BIT, [Tos Convulsa] BIT,
    Varicela BIT, Rubeola BIT, Sarampion BIT, [Enfermedades Digestivas] BIT, Hepatitis BIT,
    [Infecciones Urinarias] BIT, Glumeroulonefritis BIT, [Enfermedades de los genitales] BIT,
    [Enfermedades Neurologicas] BIT, [Convulsiones o Epilepsia] BIT, [Enfermedades Psiquiatricas] BIT,
    Diabetes BIT, [Soplo en el Corazon] BIT, [Enfermedades Cardiacas] BIT, [Hipertension Arterial] BIT,
    [Enfermedades de la Sangre] BIT, [Enfermedades de los Ganglios] BIT, [Enfermedades de los Ojos] BIT,
    [Enfermedades de los Oidos] BIT, [Enfermedades de las Glandulas] BIT, [Intervenciones Quirurgicas] BIT,
    Heridas BIT, [Toma algun medicamento] BIT, [Consume Alcohol] BIT, [Consume Tabaco] BIT,
    [Enfermedades Renales] BIT, [Falta de Sensibilidad al Dolor] BIT, [Falta de Sensibilidad al Calor] BIT,
    [Otras Enfermedades] BIT, [Examen Postural Parado] TEXT(100), [Examen Postural Sentado] TEXT(100),
    [Examen Postural Caminando] TEXT(100), [Examen Columna Servical] TEXT(100),
    [Examen Columna Dorsal] TEXT(100), [Examen Columna Lumbosacra] TEXT(100), [Examen Miembros] TEXT(100),
    [Examen Cabeza y Cuello] TEXT(100), [Examen Torax y Abdomen] TEXT(100),
    [Examen Torax Murmullo Vesicular] TEXT(100), [Examen Torax Ruidos Agregados] TEXT(100),
    [Examen Abdomen Higado] TEXT(100), [Examen Abdomen Bazo] TEXT(100), [Examen Abdomen Riñones] TEXT(100),
    [Examen Abdomen Hermias] TEXT(100), [Examen Abdomen Otros] TEXT(100),
    [Valoracion Neurologica Taxia] TEXT(100), [Valoracion Neurologica Praxia] TEXT(100),
    [Valoracion Neurologica Rot] TEXT(100), [Valoracion Neurologica Marcha] TEXT(100),
    [Valoracion Neurologica Trofismo] TEXT(100), [Examen Oftalmologico AgudVisualOD] TEXT(100),
    [Examen Oftalmologico AgudVisualOI] TEXT(100), [Examen Oftalmologico Estrabismo] TEXT(100),
    [Examen Oftalmologico Otras] TEXT(100), [Examen Cardiovascular R1] TEXT(100),
    [Examen Cardiovascular R2] TEXT(100), [Examen Cardiovascular Ruidos Agregados] TEXT(100),
    [Examen Cardiovascular Ta 1] TEXT(100), [Examen Cardiovascular Ta 2] TEXT(100),
    [Examen Cardiovascular FC] TEXT(100), [Electrocardiograma de Reposo Ritmo] TEXT(100),
    [Electrocardiograma de Reposo FC] TEXT(100), [Electrocardiograma de Reposo AQRS] TEXT(100),
    [Electrocardiograma de Reposo Observaciones] TEXT(100));
CREATE UNIQUE INDEX PrimaryKey ON HC_Deportiva (idPaciente) WITH PRIMARY;

CREATE TABLE HistoricoGestaciones (idPaciente LONG, Gesta LONG, Gestacion LONG, Fecha DATE, Detalles MEMO,
    IG TEXT(30), Peso TEXT(30), Presion TEXT(30), Edema TEXT(30), Toco TEXT(30), AU TEXT(30), CA TEXT(30),
    BCF TEXT(30));
CREATE INDEX idPaciente ON HistoricoGestaciones (idPaciente);

CREATE TABLE Imagenes (Nombre TEXT(60), Descripcion TEXT(255));
CREATE INDEX Nombre ON Imagenes (Nombre);

CREATE TABLE [Maduracion Neurologica] (paciente LONG, detalle TEXT(255), calificacion TEXT(50), fecha DATE);
CREATE INDEX paciente ON [Maduracion Neurologica] (paciente);
CREATE INDEX PacDetalle ON [Maduracion Neurologica] (paciente, detalle);

CREATE TABLE [Maduracion Sexual] (paciente LONG, Resultado TEXT(60), fecha DATE);
CREATE INDEX paciente ON [Maduracion Sexual] (paciente);

CREATE TABLE Medidas (Paciente LONG, fecha DATE, Peso DOUBLE, Talla DOUBLE, Pc DOUBLE,
    [Lugar de Consulta] TEXT(30));
CREATE INDEX paciente ON Medidas (Paciente);
CREATE INDEX PacFecha ON Medidas (Paciente, fecha);

CREATE TABLE Niveles (Nivel LONG, Descripcion TEXT(50), IngresarAEmpresas BIT, IngresarAControlAcceso BIT,
    IngresarATablasApoyo BIT, IngresarAEditorTextos BIT, IngresarABibliotecaRecursos BIT,
    IngresarARecetario BIT, IngresarACie10 BIT, IngresarAInformes BIT, IngresarAServicesSistema BIT,
    IngresarALaboratorio BIT, IngresarAEstudios BIT, IngresarAConsultas BIT, IngresarAFarmacia BIT,
    IngresarAProfesionales BIT, IngresarATurnos BIT, IngresarAPacientes BIT, ConsultarEstadistica BIT,
    BorrarLaboratorio BIT, BorrarEstudios BIT, BorrarConsultas BIT, BorrarFarmacia BIT,
    BorrarProfesionales BIT, BorrarEmpresas BIT, BorrarTurnos BIT, BorrarPacientes BIT,
    AgregarLaboratorio BIT, AgregarEstudios BIT, AgregarConsultas BIT, AgregarFarmacia BIT,
    AgregarProfesionales BIT, AgregarEmpresas BIT, AgregarTurnos BIT, AgregarPacientes BIT,
    AgregarUsuarios BIT, BorrarUsuarios BIT, IngresarAUsuarios BIT);
CREATE UNIQUE INDEX nivel ON Niveles (Nivel);

CREATE TABLE [Obra Social] (Descripcion TEXT(60), Observaciones TEXT(255), [Precio Consulta] CURRENCY);
CREATE INDEX Descripcion ON [Obra Social] (Descripcion);

CREATE TABLE Odontograma (IdPaciente LONG, Descripcion TEXT(100), Fecha DATE, Hora DATE, observaciones MEMO,
    string1 MEMO, string2 MEMO);
CREATE INDEX idPaciente ON Odontograma (IdPaciente);

CREATE TABLE Pacientes (Numero LONG, [Apellido y Nombres] TEXT(100), [Fecha de Nacimiento] DATE,
    Documento TEXT(30), Sexo TEXT(10), [Grupo Sanguineo] TEXT(5), [Obra Social] TEXT(60),
    [Numero de Afiliado] TEXT(30), [Situacion Conyugal] TEXT(20), [Historia Clinica] MEMO,
    Domicilio TEXT(100), Localidad TEXT(100), Telefono TEXT(60), Provincia TEXT(60), Pais TEXT(60),
    [Es turista o esporadico] BIT, email TEXT(100), Barrio TEXT(60), CodigoPostal TEXT(15),
    [ayuda memoria] MEMO, [Ultima fecha visita] DATE);
CREATE UNIQUE INDEX PrimaryKey ON Pacientes (Numero) WITH PRIMARY;
CREATE INDEX Nombre ON Pacientes ([Apellido y Nombres]);

CREATE TABLE Patologias (Descripcion TEXT(255));
CREATE INDEX Descripcion ON Patologias (Descripcion);

CREATE TABLE [Patologias Familiares] (Paciente LONG, Patologia TEXT(255));
CREATE INDEX paciente ON [Patologias Familiares] (Paciente);

CREATE TABLE [Patologias Perinatales] (paciente LONG, Patologia TEXT(255));
CREATE INDEX paciente ON [Patologias Perinatales] (paciente);

CREATE TABLE Pediatria (numero LONG, [Nombre de la Madre] TEXT(100), [Nombre del padre] TEXT(100),
    [Fecha Nacim Madre] DATE, [Fecha Nacim Padre] DATE, [Ocupacion Padre] TEXT(60),
    [Ocupacion Madre] TEXT(60), [Hs permanencia padre] TEXT(20), [Hs permanencia madre] TEXT(20),
    [Maniobras especiales respiracion] TEXT(60), [Maniobras especiales Cardiacas] TEXT(60),
    [Maniobras especiales metabolicas] TEXT(60), [Maniobras especiales estimulo ext] BIT,
    [Maniobras especiales otras] TEXT(255), [Profilaxis crede] BIT, [Profilaxis vitaminak] BIT,
    [Metodos de Higiene recien nacido] TEXT(255), [Observaciones del recien Nacido] MEMO,
    [Tipo liquido amniotico] TEXT(30), [sufrimiento fetal] TEXT(30), [Salud primer trimestre] TEXT(255),
    [Salud segundo trimestre] TEXT(255), [Salud tercer trimestre] TEXT(255));
CREATE UNIQUE INDEX PrimaryKey ON Pediatria (numero) WITH PRIMARY;

CREATE TABLE Perinatal (IdPaciente LONG, [Nombre de la Madre] TEXT(100), [Edad de la madre al nacer] TEXT(30),
    [Talla de la Madre al Nacer] TEXT(30), [Peso anterior de la Madre] TEXT(30),
    [peso al nacer de la madre] TEXT(30), [Gestas de la madre] TEXT(30), Paridad TEXT(30),
    [Grupo sanguineo Madre] TEXT(30), [Tiempo rotura membrana] TEXT(30), [Edad Gestacional madre] TEXT(30),
    [Patologias de la madre] TEXT(255), [sensibilización] BIT, [control Prenatal] BIT, [HIV Madre] BIT,
    [Chagas Madre] BIT, [Toxoplasmosis Madre] BIT, VDRL BIT, [Salud primer trimestre] TEXT(255),
    [Salud segundo trimestre] TEXT(255), [Salud tercer trimestre] TEXT(255), [nombre drogas parto] TEXT(255),
    [Tiempo drogas anteparto] TEXT(100), [Comienzo Parto] TEXT(100), [Terminacion Parto] TEXT(100),
    [Presentacion Parto] TEXT(100), [Causa de Intervencion Parto] TEXT(100), [Tipo liquido amniotico] TEXT(60),
    [Tipo de liquido amniotico] TEXT(60), [sufrimiento fetal] TEXT(60), [Parto efectuado por] TEXT(60),
    [Parto atendido en] TEXT(60), Nacimiento TEXT(60), [Ligadura cordon] TEXT(60),
    [Cordon presento anomalias] BIT, [Analisis cordon Grupo sanguineo] TEXT(30),
    [Analisis cordon Coombs] TEXT(30), [Analisis cordon bilirrubina] TEXT(30),
    [Analisis cordon hemoglobina] TEXT(30), [Maniobras de Rutina secado] BIT,
    [Maniobras de Rutina aspirNaso] BIT, [Maniobras de Rutina aspirGastro] BIT,
    [Maniobras especiales estimulo ext] BIT, [maniobras especiales cardiacas] TEXT(60),
    [maniobras especiales metabolicas] TEXT(60), [maniobras especiales respiracion] TEXT(60),
    [maniobras especiales de respiración] TEXT(60), [maniobras especiales otras] TEXT(60),
    [Apgar Latidos 1 min] TEXT(30), [Apgar Latidos 5 min] TEXT(30), [Apgar Respiracion 1 min] TEXT(30),
    [Apgar Respiracion 5 min] TEXT(30), [Apgar tono 1 min] TEXT(30), [Apgar tono 5 min] TEXT(30),
    [Apgar reflejos 1 min] TEXT(30), [Apgar reflejos 5 min] TEXT(30), [Apgar color 1 min] TEXT(30),
    [Apgar color 5 min] TEXT(30), [Apgar total 1 min] TEXT(30), [Apgar total 5 min] TEXT(30),
    [Tiempo de vida al examen] TEXT(30), [Peso al nacer] TEXT(30), [Talla al nacer] TEXT(30),
    [Perimetro cefalico al nacer] TEXT(30), [Edad gestacional por examen fisico] TEXT(30),
    [Malformaciones destacadas] TEXT(255), [Diagnóstico] TEXT(255), [Presenta malformaciones] BIT,
    [Color de la piel ictericia] BIT, [Color de la piel palida] BIT, [Color de la piel sianosis] BIT,
    [Neurologico normal] BIT, [Neurologico deprimido] BIT, [Neurologico excitado] BIT,
    [Presencia de dificultad respiratoria] BIT, [Presencia de dificultad cardiovascular] BIT,
    [Abdomen anormal] BIT, [Orino al nacer] BIT, [Expulso meconio al nacer] BIT,
    [Permanencia con la madre] TEXT(60), [Permanencia en UCI] TEXT(60), [Permanencia  en UCI] TEXT(60),
    [Permanencia en cunera] TEXT(60), [Permanencia de traslado] TEXT(60),
    [Permanencia en Unidad de observacion] TEXT(60), [Screening - TSH Neonatal] TEXT(2),
    [Screening - Fenilanalina Neonatal] TEXT(2), [Screening - TSH Neonatal (Valor)] TEXT(30),
    [Screening - Fenilanalina Neonatal (Valor)] TEXT(30), FechaUltimaAntitetanica DATE);
CREATE UNIQUE INDEX PrimaryKey ON Perinatal (IdPaciente) WITH PRIMARY;

CREATE TABLE POSRECETARIO (Elemento LONG, Valor TEXT(100), [Posicion X] LONG, [Posicion Y] LONG,
    Fuente TEXT(40), [Tamaño] LONG, Bold BIT, Italic BIT, Subrayado BIT, Fecha BIT, Grafico BIT);
CREATE INDEX PrimaryKey ON POSRECETARIO (Elemento);

CREATE TABLE POSRECETARIOMEDIA (Elemento LONG, Valor TEXT(100), [Posicion X] LONG, [Posicion Y] LONG,
    Fuente TEXT(40), [Tamaño] LONG, Bold BIT, Italic BIT, Subrayado BIT, Fecha BIT, Grafico BIT);
CREATE INDEX PrimaryKey ON POSRECETARIOMEDIA (Elemento);

CREATE TABLE Practicos (idpractico COUNTER, detalle TEXT(100), precio CURRENCY);

CREATE TABLE Presion (tipo TEXT(2), Edad LONG, P_5 DOUBLE, P_25 DOUBLE, P_50 DOUBLE, P_75 DOUBLE,
    P_95 DOUBLE);
CREATE INDEX tipo ON Presion (tipo, Edad);

CREATE TABLE Presupuestos (idpresupuesto COUNTER, codpaciente LONG, fecha DATE, Descripcion TEXT(255));
CREATE INDEX codpaciente ON Presupuestos (codpaciente);

CREATE TABLE Profesionales (idProfesional COUNTER, Nombre TEXT(50), Especialidad TEXT(60), Domicilio TEXT(100),
    Localidad TEXT(100), Telefonos TEXT(60), Observaciones MEMO);
CREATE UNIQUE INDEX PrimaryKey ON Profesionales (idProfesional) WITH PRIMARY;
CREATE INDEX Nombre ON Profesionales (Nombre);

CREATE TABLE Recetario (Paciente TEXT(100), fecha DATE, Receta MEMO);
CREATE INDEX fecha ON Recetario (fecha);
CREATE INDEX fechaPaciente ON Recetario (fecha, Paciente);

CREATE TABLE RelPractico (codpresupuesto LONG, codpractico LONG, idpresupuesto LONG, idpractico LONG,
    cantidad DOUBLE, precio CURRENCY, subtotal CURRENCY);
CREATE INDEX codpresupuesto ON RelPractico (codpresupuesto);

CREATE TABLE Sintomas (idSintoma COUNTER, Descripcion TEXT(255), Observaciones TEXT(255), Estadistica LONG);
CREATE INDEX Descripcion ON Sintomas (Descripcion);

CREATE TABLE SocioEscolar (idPaciente LONG, Signo TEXT(100), Valor TEXT(50));
CREATE INDEX idPaciente ON SocioEscolar (idPaciente);

CREATE TABLE TablaEstudios (Estudio TEXT(100));
CREATE INDEX Estudio ON TablaEstudios (Estudio);

CREATE TABLE TablaTempHC (Fecha DATE, Hora DATE, Dr TEXT(50), Detalles MEMO, [Fecha de Nacimiento] DATE);
CREATE INDEX Dr ON TablaTempHC (Dr);

CREATE TABLE tmpAnalisis (Estudio TEXT(64), Resultado TEXT(255));

CREATE TABLE TomaPresion (paciente LONG, fecha DATE, minima DOUBLE, maxima DOUBLE);
CREATE INDEX paciente ON TomaPresion (paciente);
CREATE INDEX PacFecha ON TomaPresion (paciente, fecha);

CREATE TABLE Tratamientos (Descripcion TEXT(255), Clasificacion TEXT(60), Droga TEXT(100), Dosis TEXT(30),
    Intervalo TEXT(30), Lapso TEXT(30), Estadistica LONG);
CREATE INDEX Descripcion ON Tratamientos (Descripcion);
CREATE INDEX clasificacion ON Tratamientos (Clasificacion);

CREATE TABLE Turnos (Fecha DATE, Hora TEXT(5), Paciente TEXT(50), Telefono TEXT(30), email TEXT(30),
    NroAfiliado TEXT(30), Mutual TEXT(60), Dr TEXT(50), Motivo TEXT(60));
CREATE INDEX Fecha ON Turnos (Fecha, Hora);

CREATE TABLE Usuarios (Nombre TEXT(50), Clave TEXT(30), Nivel LONG);
CREATE INDEX Nombre ON Usuarios (Nombre);

CREATE TABLE Vacunas (Paciente LONG, fecha DATE, Vacuna TEXT(20), Dosis TEXT(30), observaciones TEXT(255));
CREATE INDEX Paciente ON Vacunas (Paciente);
CREATE INDEX VacIndex ON Vacunas (Paciente, Vacuna, Dosis);
CREATE INDEX PorDosis ON Vacunas (Vacuna, Dosis, Paciente, fecha, observaciones);

CREATE TABLE VidaSexual (idPaciente LONG, Topico TEXT(100), Valor TEXT(255));
CREATE INDEX idPaciente ON VidaSexual (idPaciente);

CREATE TABLE Visual (Paciente LONG, fecha DATE, [ojo derecho cerca] TEXT(10), [ojo derecho lejos] TEXT(10),
    [ojo izquierdo cerca] TEXT(10), [ojo izquierdo lejos] TEXT(10), observaciones MEMO);
CREATE INDEX paciente ON Visual (Paciente);

