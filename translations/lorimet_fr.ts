<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>lorimet</name>
    <message>
        <source>Failed to register user defined messages.</source>
        <translation>Impossible d&apos;enregistrer les messages définis par l&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Serious Error</source>
        <translation>Erreur grave</translation>
    </message>
    <message>
        <source>LOST A MESSAGE!!!</source>
        <translation>MESSAGE PERDU !!!</translation>
    </message>
    <message>
        <source>Error:</source>
        <translation>Erreur :</translation>
    </message>
    <message>
        <source>Error:  </source>
        <translation>Erreur :  </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERREUR</translation>
    </message>
    <message>
        <source>Could not locate the Norvick Main executable.</source>
        <translation>Impossible de trouver le programme principal Norvick.</translation>
    </message>
    <message>
        <source>Please check the connection and make sure the cable is properly connected.  Click the &quot;Restart&quot; button to try again.</source>
        <translation>Veuillez vérifier la connexion et vous assurer que le câble est correctement branché. Cliquez sur le bouton « Relancer » pour réessayer.</translation>
    </message>
    <message>
        <source>ERROR: Unable to connect to the device</source>
        <translation>ERREUR : connexion à l&apos;appareil impossible</translation>
    </message>
    <message>
        <source>Please check to make sure the device drivers and libraries are correctly installed.</source>
        <translation>Veuillez vérifier que les pilotes et les bibliothèques de l&apos;appareil sont correctement installés.</translation>
    </message>
    <message>
        <source>RP1210A Error: </source>
        <translation>Erreur RP1210A : </translation>
    </message>
    <message>
        <source>Successful connection was attained but has since been lost.</source>
        <translation>La connexion avait été établie, mais elle a été perdue depuis.</translation>
    </message>
    <message>
        <source>Please check connection between the PC and ECU.</source>
        <translation>Veuillez vérifier la connexion entre le PC et l&apos;ECU.</translation>
    </message>
    <message>
        <source>ECU Information</source>
        <translation>Informations ECU</translation>
    </message>
    <message>
        <source>System Name</source>
        <translation>Nom du système</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Part Number</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Software Version</source>
        <translation>Version logiciel</translation>
    </message>
    <message>
        <source>Production Date</source>
        <translation>Date de production</translation>
    </message>
    <message>
        <source>Diagnostic ID</source>
        <translation>ID de diagnostic</translation>
    </message>
    <message>
        <source>Odometer</source>
        <translation>Odomètre</translation>
    </message>
    <message>
        <source>Trip Reading</source>
        <translation>Compteur partiel</translation>
    </message>
    <message>
        <source>Next Service</source>
        <translation>Prochain entretien</translation>
    </message>
    <message>
        <source>Wheel Speed (mph)</source>
        <translation>Vitesse de roue (mph)</translation>
    </message>
    <message>
        <source>Warning Lamp</source>
        <translation>Voyant d&apos;alerte</translation>
    </message>
    <message>
        <source>Air Pressures (psi)</source>
        <translation>Pressions d&apos;air (psi)</translation>
    </message>
    <message>
        <source>Service Brake Demand</source>
        <translation>Demande de frein de service</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>Brake Side 1</source>
        <translation>Frein côté 1</translation>
    </message>
    <message>
        <source>Brake Side 2</source>
        <translation>Frein côté 2</translation>
    </message>
    <message>
        <source>Bellows - Main Axle</source>
        <translation>Soufflets - Essieu principal</translation>
    </message>
    <message>
        <source>Bellows - Steering Axle</source>
        <translation>Soufflets - Essieu directeur</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tension</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Stop Light</source>
        <translation>Feux stop</translation>
    </message>
    <message>
        <source>Permanent</source>
        <translation>Permanente</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Défauts</translation>
    </message>
    <message>
        <source>Existing</source>
        <translation>Présents</translation>
    </message>
    <message>
        <source>Message Center:</source>
        <translation>Centre de messages :</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Allumé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Éteint</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnostic</translation>
    </message>
    <message>
        <source>&amp;Sign-off</source>
        <translation>&amp;Validation</translation>
    </message>
    <message>
        <source>&amp;Tests</source>
        <translation>&amp;Tests</translation>
    </message>
    <message>
        <source>S&amp;ystem</source>
        <translation>&amp;Système</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;ODR</source>
        <translation>OD&amp;R</translation>
    </message>
    <message>
        <source>&amp;Utility</source>
        <translation>&amp;Utilitaires</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Display Faults</source>
        <translation>&amp;Afficher les défauts</translation>
    </message>
    <message>
        <source>&amp;Clear Faults</source>
        <translation>E&amp;ffacer les défauts</translation>
    </message>
    <message>
        <source>&amp;Restart ECU Communications</source>
        <translation>&amp;Relancer la communication ECU</translation>
    </message>
    <message>
        <source>&amp;Begin Sign-off Procedure</source>
        <translation>&amp;Commencer la procédure de validation</translation>
    </message>
    <message>
        <source>&amp;Pressure Test</source>
        <translation>Test de &amp;pression</translation>
    </message>
    <message>
        <source>&amp;Redundancy Test</source>
        <translation>Test de &amp;redondance</translation>
    </message>
    <message>
        <source>&amp;Sensor Test</source>
        <translation>Test des &amp;capteurs</translation>
    </message>
    <message>
        <source>&amp;Lamp Test</source>
        <translation>Test du &amp;voyant</translation>
    </message>
    <message>
        <source>Suspension &amp;Calibration</source>
        <translation>Calibrage de la &amp;suspension</translation>
    </message>
    <message>
        <source>Stop Light &amp;Activation</source>
        <translation>&amp;Activation des feux stop</translation>
    </message>
    <message>
        <source>Edit Parameters From &amp;ECU</source>
        <translation>Modifier les paramètres depuis l&apos;&amp;ECU</translation>
    </message>
    <message>
        <source>Edit Parameters From &amp;File</source>
        <translation>Modifier les paramètres depuis un &amp;fichier</translation>
    </message>
    <message>
        <source>Save &amp;EEPROM Data</source>
        <translation>Enregistrer les données &amp;EEPROM</translation>
    </message>
    <message>
        <source>&amp;Reset ECU</source>
        <translation>&amp;Redémarrer l&apos;ECU</translation>
    </message>
    <message>
        <source>&amp;Display ODR Overview Data</source>
        <translation>&amp;Afficher la synthèse des données ODR</translation>
    </message>
    <message>
        <source>&amp;Export ODR Data</source>
        <translation>&amp;Exporter les données ODR</translation>
    </message>
    <message>
        <source>&amp;Set Customer EOL Bit</source>
        <translation>&amp;Positionner le bit EOL client</translation>
    </message>
    <message>
        <source>Bus &amp;Monitor</source>
        <translation>&amp;Moniteur de bus</translation>
    </message>
    <message>
        <source>Start Data&amp;log Only</source>
        <translation>Démarrer le journal de données seu&amp;l</translation>
    </message>
    <message>
        <source>Start &amp;Datalog Only</source>
        <translation>Démarrer le &amp;journal de données seul</translation>
    </message>
    <message>
        <source>Stop &amp;Datalog Only</source>
        <translation>Arrêter le &amp;journal de données seul</translation>
    </message>
    <message>
        <source>&amp;Disable Broadcast</source>
        <translation>Dé&amp;sactiver la diffusion</translation>
    </message>
    <message>
        <source>Enable &amp;Broadcast</source>
        <translation>&amp;Activer la diffusion</translation>
    </message>
    <message>
        <source>ODR Delete</source>
        <translation>Effacement ODR</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation>&amp;Rechercher de l&apos;aide sur...</translation>
    </message>
    <message>
        <source>&amp;About Lorimet...</source>
        <translation>À &amp;propos de Lorimet...</translation>
    </message>
    <message>
        <source>Exit Trailer Zelt</source>
        <translation>Quitter Trailer Zelt</translation>
    </message>
    <message>
        <source>Print Fault and Sensor\Valve Test Information</source>
        <translation>Imprimer les informations de défauts et de tests capteurs\valves</translation>
    </message>
    <message>
        <source>Save Fault and Sensor\Valve Test Information</source>
        <translation>Enregistrer les informations de défauts et de tests capteurs\valves</translation>
    </message>
    <message>
        <source>Restart the Trailer Diagnostics</source>
        <translation>Relancer le diagnostic de la remorque</translation>
    </message>
    <message>
        <source>View the Faults</source>
        <translation>Afficher les défauts</translation>
    </message>
    <message>
        <source>Test Lamp</source>
        <translation>Tester le voyant</translation>
    </message>
    <message>
        <source>Test the Sensors</source>
        <translation>Tester les capteurs</translation>
    </message>
    <message>
        <source>View the Notebook</source>
        <translation>Afficher le bloc-notes</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Pressure Test Passed.</source>
        <translation>Test de pression réussi.</translation>
    </message>
    <message>
        <source>Pressure Test Failed.  Please resolve issues and run test again.</source>
        <translation>Échec du test de pression. Veuillez éliminer les causes et relancer le test.</translation>
    </message>
    <message>
        <source>Redundancy Test Passed.</source>
        <translation>Test de redondance réussi.</translation>
    </message>
    <message>
        <source>Redundancy Test Failed.  Please resolve issues and run test again.</source>
        <translation>Échec du test de redondance. Veuillez éliminer les causes et relancer le test.</translation>
    </message>
    <message>
        <source>Sensor Test Passed.</source>
        <translation>Test des capteurs réussi.</translation>
    </message>
    <message>
        <source>Sensor Test Failed.  Please resolve issues and run test again.</source>
        <translation>Échec du test des capteurs. Veuillez éliminer les causes et relancer le test.</translation>
    </message>
    <message>
        <source>Test Passed</source>
        <translation>Test réussi</translation>
    </message>
    <message>
        <source>Test Failed!</source>
        <translation>Échec du test !</translation>
    </message>
    <message>
        <source>Fault Information</source>
        <translation>Informations sur les défauts</translation>
    </message>
    <message>
        <source>Faults:</source>
        <translation>Défauts :</translation>
    </message>
    <message>
        <source>Repair Instructions:</source>
        <translation>Instructions de réparation :</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>SID</source>
        <translation>SID</translation>
    </message>
    <message>
        <source>FMI</source>
        <translation>FMI</translation>
    </message>
    <message>
        <source>ACTIVE</source>
        <translation>ACTIF</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Mémorisé</translation>
    </message>
    <message>
        <source>The description is not available</source>
        <translation>La description n&apos;est pas disponible</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>No help manual currently exists for this Trailer configuration.</source>
        <translation>Il n&apos;existe actuellement aucun manuel d&apos;aide pour cette configuration de remorque.</translation>
    </message>
    <message>
        <source>Missing Help File</source>
        <translation>Fichier d&apos;aide manquant</translation>
    </message>
    <message>
        <source>Error in insert fault record.</source>
        <translation>Erreur lors de l&apos;insertion de l&apos;enregistrement de défaut.</translation>
    </message>
    <message>
        <source>Reading Parameter Data...</source>
        <translation>Lecture des données de paramètres...</translation>
    </message>
    <message>
        <source>Range Limit Exceeded</source>
        <translation>Valeur hors limites</translation>
    </message>
    <message>
        <source>Invalid Values</source>
        <translation>Valeurs non valides</translation>
    </message>
    <message>
        <source>OVG System Parameters</source>
        <translation>Paramètres système OVG</translation>
    </message>
    <message>
        <source>Vehicle Type</source>
        <translation>Type de véhicule</translation>
    </message>
    <message>
        <source>Semi trailer</source>
        <translation>Semi-remorque</translation>
    </message>
    <message>
        <source>Draw-bar trailer</source>
        <translation>Remorque à timon</translation>
    </message>
    <message>
        <source>Single axle trailer</source>
        <translation>Remorque à un essieu</translation>
    </message>
    <message>
        <source>Number of Axles</source>
        <translation>Nombre d&apos;essieux</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>ABS System</source>
        <translation>Système ABS</translation>
    </message>
    <message>
        <source>2S/2M</source>
        <translation>2S/2M</translation>
    </message>
    <message>
        <source>4S/2M</source>
        <translation>4S/2M</translation>
    </message>
    <message>
        <source>4S/3M</source>
        <translation>4S/3M</translation>
    </message>
    <message>
        <source>4S/2M+1M</source>
        <translation>4S/2M+1M</translation>
    </message>
    <message>
        <source>2S/1M</source>
        <translation>2S/1M</translation>
    </message>
    <message>
        <source>Suspension</source>
        <translation>Suspension</translation>
    </message>
    <message>
        <source>Suspension Type</source>
        <translation>Type de suspension</translation>
    </message>
    <message>
        <source>Air suspension</source>
        <translation>Suspension pneumatique</translation>
    </message>
    <message>
        <source>Mechanical suspension</source>
        <translation>Suspension mécanique</translation>
    </message>
    <message>
        <source>Modular Mounting</source>
        <translation>Montage du modulateur</translation>
    </message>
    <message>
        <source>Facing Forward</source>
        <translation>Vers l&apos;avant</translation>
    </message>
    <message>
        <source>Axle Definition</source>
        <translation>Définition des essieux</translation>
    </message>
    <message>
        <source>Axle</source>
        <translation>Essieu</translation>
    </message>
    <message>
        <source>Sensor c-d</source>
        <translation>Capteur c-d</translation>
    </message>
    <message>
        <source>Sensor e-f</source>
        <translation>Capteur e-f</translation>
    </message>
    <message>
        <source>3rd Modulator</source>
        <translation>3e modulateur</translation>
    </message>
    <message>
        <source>Lift Axle 1</source>
        <translation>Essieu relevable 1</translation>
    </message>
    <message>
        <source>Lift Axle 2</source>
        <translation>Essieu relevable 2</translation>
    </message>
    <message>
        <source>As Tag Axle</source>
        <translation>Comme essieu traîné</translation>
    </message>
    <message>
        <source>Stop Light Activation</source>
        <translation>Activation des feux stop</translation>
    </message>
    <message>
        <source>Stop Light Activation Cable</source>
        <translation>Câble d&apos;activation des feux stop</translation>
    </message>
    <message>
        <source>Optional Stoplight Activation Cable Installed</source>
        <translation>Câble d&apos;activation des feux stop (option) installé</translation>
    </message>
    <message>
        <source>Level 2 OVG Activation Output (GIO3)</source>
        <translation>Sortie d&apos;activation OVG niveau 2 (GIO3)</translation>
    </message>
    <message>
        <source>No Stoplight Activation Cable Installed</source>
        <translation>Aucun câble d&apos;activation des feux stop installé</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>OVG LSV  Parameters</source>
        <translation>Paramètres LSV OVG</translation>
    </message>
    <message>
        <source>Laden</source>
        <translation>En charge</translation>
    </message>
    <message>
        <source>Unladen</source>
        <translation>À vide</translation>
    </message>
    <message>
        <source>Axle load &#13;
(kg)&#13;
</source>
        <translation>Charge d&apos;essieu &#13;
(kg)&#13;
</translation>
    </message>
    <message>
        <source>Suspension pressure (bar)&#13;
</source>
        <translation>Pression suspension (psi)&#13;
</translation>
    </message>
    <message>
        <source>Suspension path (mm)</source>
        <translation>Course suspension (mm)</translation>
    </message>
    <message>
        <source>The file was not read: a count is not from 0 to 200.</source>
        <translation>Le fichier n&apos;a pas été lu : un nombre d&apos;octets n&apos;est pas compris entre 0 et 200.</translation>
    </message>
    <message>
        <source>The file was not read: a byte is not from 0 to 255.</source>
        <translation>Le fichier n&apos;a pas été lu : un octet n&apos;est pas compris entre 0 et 255.</translation>
    </message>
    <message>
        <source>The file was not read: the production date is not a date.</source>
        <translation>Le fichier n&apos;a pas été lu : la date de production n&apos;est pas une date.</translation>
    </message>
    <message>
        <source>The file was not read: the vehicle id has fewer than 18 characters.</source>
        <translation>Le fichier n&apos;a pas été lu : l&apos;ID véhicule a moins de 18 caractères.</translation>
    </message>
    <message>
        <source>The file was not read: the manufacturer has fewer than 20 characters.</source>
        <translation>Le fichier n&apos;a pas été lu : le constructeur a moins de 20 caractères.</translation>
    </message>
    <message>
        <source>The file was not read: the trailer type has fewer than 20 characters.</source>
        <translation>Le fichier n&apos;a pas été lu : le type de remorque a moins de 20 caractères.</translation>
    </message>
    <message>
        <source>The file was not saved: it cannot be written.</source>
        <translation>Le fichier n&apos;a pas été enregistré : il est impossible de l&apos;écrire.</translation>
    </message>
    <message>
        <source>The file was not saved: a block that it needs is missing.</source>
        <translation>Le fichier n&apos;a pas été enregistré : il manque un bloc nécessaire.</translation>
    </message>
    <message>
        <source>The file was not saved: a block is longer than 200 bytes.</source>
        <translation>Le fichier n&apos;a pas été enregistré : un bloc dépasse 200 octets.</translation>
    </message>
    <message>
        <source>The file was not saved: the sum of a block is above 32767.</source>
        <translation>Le fichier n&apos;a pas été enregistré : la somme d&apos;un bloc dépasse 32767.</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>Braking &#13;
pressure&#13;
</source>
        <translation>Pression de &#13;
freinage&#13;
</translation>
    </message>
    <message>
        <source>Control pressure PM (psi)</source>
        <translation>Pression de commande PM (psi)</translation>
    </message>
    <message>
        <source>Distance sensor lever length (mm)</source>
        <translation>Longueur de levier du capteur de course (mm)</translation>
    </message>
    <message>
        <source>Production Date (week/year)</source>
        <translation>Date de production (semaine/année)</translation>
    </message>
    <message>
        <source>Vehicle ID</source>
        <translation>ID véhicule</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Constructeur</translation>
    </message>
    <message>
        <source>Axle Load Laden out of range.  Valid range : 0 - 25,000 kg</source>
        <translation>Charge d&apos;essieu (en charge) hors limites. Plage valide : 0 - 25000 kg</translation>
    </message>
    <message>
        <source>Axle Load Unladen out of range.  Valid range : 0 - 25,000 kg</source>
        <translation>Charge d&apos;essieu (à vide) hors limites. Plage valide : 0 - 25000 kg</translation>
    </message>
    <message>
        <source>Braking Pressure Laden out of range.  Valid range : 0 - 145 psi</source>
        <translation>Pression de freinage en charge hors limites. Plage valide : 0 - 145 psi</translation>
    </message>
    <message>
        <source>Braking Pressure Unladen out of range.  Valid range : 0 - 145 psi</source>
        <translation>Pression de freinage à vide hors limites. Plage valide : 0 - 145 psi</translation>
    </message>
    <message>
        <source>Lever Length out of range.  Valid range : 50 - 200 mm</source>
        <translation>Longueur de levier hors limites. Plage valide : 50 - 200 mm</translation>
    </message>
    <message>
        <source>Production Week out of range.  Valid range : 0 - 52</source>
        <translation>Semaine de production hors limites. Plage valide : 0 - 52</translation>
    </message>
    <message>
        <source>Suspension Pressure Unladen out of range.  Valid range : 0 - 181 psi</source>
        <translation>Pression de suspension à vide hors limites. Plage valide : 0 - 181 psi</translation>
    </message>
    <message>
        <source>Suspension Pressure Laden out of range.  Valid range : 0 - 181 psi</source>
        <translation>Pression de suspension en charge hors limites. Plage valide : 0 - 181 psi</translation>
    </message>
    <message>
        <source>Suspension Path Laden out of range.  Valid range : 10 - 400 mm</source>
        <translation>Course de suspension en charge hors limites. Plage valide : 10 - 400 mm</translation>
    </message>
    <message>
        <source>Number of Teeth out of range.  Valid range : 50 - 130</source>
        <translation>Nombre de dents hors limites. Plage valide : 50 - 130</translation>
    </message>
    <message>
        <source>Tire Size out of range.  Valid range : 1200 - 5200 mm</source>
        <translation>Circonférence du pneu hors limites. Plage valide : 1200 - 5200 mm</translation>
    </message>
    <message>
        <source>Lifting Pressure out of range.  Valid range : 0 - 100 psi</source>
        <translation>Pression de relevage hors limites. Plage valide : 0 - 100 psi</translation>
    </message>
    <message>
        <source>Lowering Pressure out of range.  Valid range : 0 - 100 psi</source>
        <translation>Pression d&apos;abaissement hors limites. Plage valide : 0 - 100 psi</translation>
    </message>
    <message>
        <source>Turn On Thresh out of range.  Valid range : 2 - 100 kph</source>
        <translation>Seuil d&apos;activation hors limites. Plage valide : 2 - 100 km/h</translation>
    </message>
    <message>
        <source>Turn Off Thresh out of range.  Valid range : 0 - 100 kph</source>
        <translation>Seuil de désactivation hors limites. Plage valide : 0 - 100 km/h</translation>
    </message>
    <message>
        <source>GIO Selection</source>
        <translation>Sélection GIO</translation>
    </message>
    <message>
        <source>Special GIO Functions</source>
        <translation>Fonctions GIO spéciales</translation>
    </message>
    <message>
        <source>TIXA Tire Inflation</source>
        <translation>Gonflage des pneus TIXA</translation>
    </message>
    <message>
        <source>Tag Axle (Rear Suspension Dump)</source>
        <translation>Essieu traîné (mise à l&apos;air de la suspension arrière)</translation>
    </message>
    <message>
        <source>Reverse Light</source>
        <translation>Feu de recul</translation>
    </message>
    <message>
        <source>Tank Pressure</source>
        <translation>Pression du réservoir d&apos;air</translation>
    </message>
    <message>
        <source>Car Hauler Height Status with Events</source>
        <translation>État de hauteur du porte-voitures avec événements</translation>
    </message>
    <message>
        <source>Car Hauler Height Status with Events and TIXA</source>
        <translation>État de hauteur du porte-voitures avec événements et TIXA</translation>
    </message>
    <message>
        <source>Lift Axle</source>
        <translation>Essieu relevable</translation>
    </message>
    <message>
        <source>Door Ajar</source>
        <translation>Porte entrouverte</translation>
    </message>
    <message>
        <source>GIO3, single port Y-cable, P/N 310 662 517 0</source>
        <translation>GIO3, câble en Y à un port, réf. 310 662 517 0</translation>
    </message>
    <message>
        <source>GIO1, single port Y-cable, P/N 310 662 517 0</source>
        <translation>GIO1, câble en Y à un port, réf. 310 662 517 0</translation>
    </message>
    <message>
        <source>Perkins Application</source>
        <translation>Application Perkins</translation>
    </message>
    <message>
        <source>Hydraulic Pressure Sensor (GIO 1)</source>
        <translation>Capteur de pression hydraulique (GIO 1)</translation>
    </message>
    <message>
        <source>Constant Power (GIO 2)</source>
        <translation>Alimentation électrique permanente (GIO 2)</translation>
    </message>
    <message>
        <source>Power Supply</source>
        <translation>Alimentation électrique</translation>
    </message>
    <message>
        <source>Speed Switch (GIO 3)</source>
        <translation>Contacteur de vitesse (GIO 3)</translation>
    </message>
    <message>
        <source>OVG/ABS Parameters</source>
        <translation>Paramètres OVG/ABS</translation>
    </message>
    <message>
        <source>Overturn Guard (OVG)</source>
        <translation>Antirenversement (OVG)</translation>
    </message>
    <message>
        <source>OVG Not Available</source>
        <translation>OVG non disponible</translation>
    </message>
    <message>
        <source>OVG OFF</source>
        <translation>OVG désactivé</translation>
    </message>
    <message>
        <source>OVG On - Single Tires</source>
        <translation>OVG activé - pneus simples</translation>
    </message>
    <message>
        <source>OVG On - Twin Tires</source>
        <translation>OVG activé - pneus jumelés</translation>
    </message>
    <message>
        <source>Tire Circumference (mm)</source>
        <translation>Circonférence du pneu (mm)</translation>
    </message>
    <message>
        <source>Number of Teeth</source>
        <translation>Nombre de dents</translation>
    </message>
    <message>
        <source>Axle c-d</source>
        <translation>Essieu c-d</translation>
    </message>
    <message>
        <source>Axle e-f</source>
        <translation>Essieu e-f</translation>
    </message>
    <message>
        <source>&amp;Save to ECU</source>
        <translation>&amp;Enregistrer dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Save To &amp;File</source>
        <translation>Enregistrer dans un f&amp;ichier</translation>
    </message>
    <message>
        <source>Writing EOL5 Data to ECU</source>
        <translation>Écriture des données EOL5 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing Vehicle Data to ECU</source>
        <translation>Écriture des données véhicule dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing Trailer Data to ECU</source>
        <translation>Écriture des données remorque dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing EOL3 Data to ECU</source>
        <translation>Écriture des données EOL3 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing EOL4 Data to ECU</source>
        <translation>Écriture des données EOL4 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing EOL6 Data to ECU</source>
        <translation>Écriture des données EOL6 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing EOL9 Data to ECU</source>
        <translation>Écriture des données EOL9 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing FCF 1 Data to ECU</source>
        <translation>Écriture des données FCF 1 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing FCF 2 Data to ECU</source>
        <translation>Écriture des données FCF 2 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing FCF 3 Data to ECU</source>
        <translation>Écriture des données FCF 3 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing FCF 4 Data to ECU</source>
        <translation>Écriture des données FCF 4 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing FCF 5 Data to ECU</source>
        <translation>Écriture des données FCF 5 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing FCF 6 Data to ECU</source>
        <translation>Écriture des données FCF 6 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing FCF 7 Data to ECU</source>
        <translation>Écriture des données FCF 7 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing FCF 8 Data to ECU</source>
        <translation>Écriture des données FCF 8 dans l&apos;ECU</translation>
    </message>
    <message>
        <source>Writing OVG Data to ECU </source>
        <translation>Écriture des données OVG dans l&apos;ECU </translation>
    </message>
    <message>
        <source>Updating Checksums</source>
        <translation>Mise à jour des sommes de contrôle</translation>
    </message>
    <message>
        <source>Clearing Faults</source>
        <translation>Effacement des défauts</translation>
    </message>
    <message>
        <source>Performing Reset of ECU</source>
        <translation>Redémarrage de l&apos;ECU en cours</translation>
    </message>
    <message>
        <source>Checking for Parameter Errors</source>
        <translation>Recherche d&apos;erreurs de paramètres</translation>
    </message>
    <message>
        <source>Lift Axle Lowering/Lifting Pressures</source>
        <translation>Pressions d&apos;abaissement/relevage de l&apos;essieu</translation>
    </message>
    <message>
        <source>Lowering Pressure</source>
        <translation>Pression d&apos;abaissement</translation>
    </message>
    <message>
        <source>Lifting Pressure</source>
        <translation>Pression de relevage</translation>
    </message>
    <message>
        <source>Lowering Pressure (psi)</source>
        <translation>Pression d&apos;abaissement (psi)</translation>
    </message>
    <message>
        <source>Lifting Pressure (psi)</source>
        <translation>Pression de relevage (psi)</translation>
    </message>
    <message>
        <source>Lifting Pressure must be less than Lowering Pressure.</source>
        <translation>La pression de relevage doit être inférieure à la pression d&apos;abaissement.</translation>
    </message>
    <message>
        <source>Lifting Pressure and Lowering Pressure must differ by more than 5 psi.</source>
        <translation>La pression de relevage et la pression d&apos;abaissement doivent différer de plus de 5 psi.</translation>
    </message>
    <message>
        <source>Lifting Pressure and Lowering Pressure must differ by more than 2 kph.</source>
        <translation>La pression de relevage et la pression d&apos;abaissement doivent différer de plus de 2 km/h.</translation>
    </message>
    <message>
        <source>Speed Switch Vehicle Speed Thresholds</source>
        <translation>Seuils du contacteur de vitesse</translation>
    </message>
    <message>
        <source>&quot;Turn On&quot; Vehicle Speed</source>
        <translation>Vitesse du véhicule à l&apos;« activation »</translation>
    </message>
    <message>
        <source>&quot;Turn Off&quot; Vehicle Speed</source>
        <translation>Vitesse du véhicule à la « désactivation »</translation>
    </message>
    <message>
        <source>12V is supplied from 0 kph until the turn-off speed is reached.</source>
        <translation>Le 12 V est fourni de 0 km/h jusqu&apos;à la vitesse de désactivation.</translation>
    </message>
    <message>
        <source>Turn OFF Threshold must be less than Turn ON Threshold.</source>
        <translation>Le seuil de DÉSACTIVATION doit être inférieur au seuil d&apos;ACTIVATION.</translation>
    </message>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>Impossible d&apos;afficher le sommaire de l&apos;aide. Aucune aide n&apos;est associée à ce projet.</translation>
    </message>
    <message>
        <source>About Lorimet</source>
        <translation>À propos de Lorimet</translation>
    </message>
    <message>
        <source>Diagnostics and end-of-line tests for trailer brake ECUs</source>
        <translation>Diagnostic et tests de fin de ligne des ECU de freinage de remorque</translation>
    </message>
    <message>
        <source>This program is protected by copyright law and international treaties. It is supplied to trained workshop and production staff only. Work on a trailer&apos;s brake system endangers lives when it is done wrongly: follow the instructions of the vehicle&apos;s and the brake system&apos;s makers, and test the brakes before the vehicle goes back on the road. Norvick accepts no liability for damage that arises from improper use.</source>
        <translation>Ce programme est protégé par le droit d&apos;auteur et par les traités internationaux. Il est destiné exclusivement au personnel formé d&apos;atelier et de production. Une intervention incorrecte sur le système de freinage d&apos;une remorque met des vies en danger : veuillez suivre les instructions des constructeurs du véhicule et du système de freinage, et tester les freins avant de remettre le véhicule sur la route. Norvick décline toute responsabilité pour les dommages résultant d&apos;une utilisation non conforme.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Failed to launch Adobe Acrobat Reader due to one of the following reasons:</source>
        <translation>Échec du lancement d&apos;Adobe Acrobat Reader pour l&apos;une des raisons suivantes :</translation>
    </message>
    <message>
        <source>1.  Path to the executable contained in the registry is invalid.</source>
        <translation>1.  Le chemin du programme indiqué dans le registre n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>2.  Adobe Acrobat Reader version is not 4.0 or higher.</source>
        <translation>2.  La version d&apos;Adobe Acrobat Reader n&apos;est pas 4.0 ou supérieure.</translation>
    </message>
    <message>
        <source>3.  Adobe Acrobat Reader has not been installed.</source>
        <translation>3.  Adobe Acrobat Reader n&apos;est pas installé.</translation>
    </message>
    <message>
        <source>Norvick Lorimet</source>
        <translation>Norvick Lorimet</translation>
    </message>
    <message>
        <source>Lorimet</source>
        <translation>Lorimet</translation>
    </message>
    <message>
        <source>Communications are only partially functioning.</source>
        <translation>La communication ne fonctionne que partiellement.</translation>
    </message>
    <message>
        <source>Please check your connections between the PC</source>
        <translation>Veuillez vérifier les connexions entre le PC</translation>
    </message>
    <message>
        <source>     and the Norvick Trailer ABS ECU.</source>
        <translation>     et l&apos;ECU ABS de remorque Norvick.</translation>
    </message>
    <message>
        <source>Communications are not working, unable to connect to the data bus.</source>
        <translation>La communication ne fonctionne pas, connexion au bus de données impossible.</translation>
    </message>
    <message>
        <source>RP1210A Error</source>
        <translation>Erreur RP1210A</translation>
    </message>
    <message>
        <source>Number: </source>
        <translation>Numéro : </translation>
    </message>
    <message>
        <source>Description: </source>
        <translation>Description : </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Détails</translation>
    </message>
    <message>
        <source>  Complete</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Sensor c air gap too large</source>
        <translation>Capteur c - entrefer trop grand</translation>
    </message>
    <message>
        <source>Sensor c wheel speed diff.</source>
        <translation>Capteur c - différence de vitesse de roue</translation>
    </message>
    <message>
        <source>Sensor c short to 12V</source>
        <translation>Capteur c - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Sensor c short to ground</source>
        <translation>Capteur c - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Sensor c open circuit</source>
        <translation>Capteur c - circuit ouvert</translation>
    </message>
    <message>
        <source>Sensor c open or short circuit</source>
        <translation>Capteur c - circuit ouvert ou court-circuit</translation>
    </message>
    <message>
        <source>Sensor c tone wheel defect</source>
        <translation>Capteur c - défaut de couronne dentée</translation>
    </message>
    <message>
        <source>Sensor c wheel slip</source>
        <translation>Capteur c - glissement de roue</translation>
    </message>
    <message>
        <source>Sensor c no speed</source>
        <translation>Capteur c - aucune vitesse</translation>
    </message>
    <message>
        <source>Sensor c erratic speed signal</source>
        <translation>Capteur c - signal de vitesse erratique</translation>
    </message>
    <message>
        <source>Sensor c chattering</source>
        <translation>Capteur c - vibrations</translation>
    </message>
    <message>
        <source>Sensor c bad device or component</source>
        <translation>Capteur c - dispositif ou composant défectueux</translation>
    </message>
    <message>
        <source>Sensor c wheel speed oscillating</source>
        <translation>Capteur c - vitesse de roue oscillante</translation>
    </message>
    <message>
        <source>Sensor d air gap too large</source>
        <translation>Capteur d - entrefer trop grand</translation>
    </message>
    <message>
        <source>Sensor d wheel speed diff.</source>
        <translation>Capteur d - différence de vitesse de roue</translation>
    </message>
    <message>
        <source>Sensor d short to 12V</source>
        <translation>Capteur d - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Sensor d short to ground</source>
        <translation>Capteur d - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Sensor d open circuit</source>
        <translation>Capteur d - circuit ouvert</translation>
    </message>
    <message>
        <source>Sensor d open or short circuit</source>
        <translation>Capteur d - circuit ouvert ou court-circuit</translation>
    </message>
    <message>
        <source>Sensor d tone wheel defect</source>
        <translation>Capteur d - défaut de couronne dentée</translation>
    </message>
    <message>
        <source>Sensor d wheel slip</source>
        <translation>Capteur d - glissement de roue</translation>
    </message>
    <message>
        <source>Sensor d no speed</source>
        <translation>Capteur d - aucune vitesse</translation>
    </message>
    <message>
        <source>Sensor d erratic speed signal</source>
        <translation>Capteur d - signal de vitesse erratique</translation>
    </message>
    <message>
        <source>Sensor d chattering</source>
        <translation>Capteur d - vibrations</translation>
    </message>
    <message>
        <source>Sensor d bad device or component</source>
        <translation>Capteur d - dispositif ou composant défectueux</translation>
    </message>
    <message>
        <source>Sensor d wheel speed oscillating</source>
        <translation>Capteur d - vitesse de roue oscillante</translation>
    </message>
    <message>
        <source>Sensor e air gap too large</source>
        <translation>Capteur e - entrefer trop grand</translation>
    </message>
    <message>
        <source>Sensor e wheel speed diff.</source>
        <translation>Capteur e - différence de vitesse de roue</translation>
    </message>
    <message>
        <source>Sensor e short to 12V</source>
        <translation>Capteur e - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Sensor e short to ground</source>
        <translation>Capteur e - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Sensor e open circuit</source>
        <translation>Capteur e - circuit ouvert</translation>
    </message>
    <message>
        <source>Sensor e open or short circuit</source>
        <translation>Capteur e - circuit ouvert ou court-circuit</translation>
    </message>
    <message>
        <source>Sensor e tone wheel defect</source>
        <translation>Capteur e - défaut de couronne dentée</translation>
    </message>
    <message>
        <source>Sensor e wheel slip</source>
        <translation>Capteur e - glissement de roue</translation>
    </message>
    <message>
        <source>Sensor e no speed</source>
        <translation>Capteur e - aucune vitesse</translation>
    </message>
    <message>
        <source>Sensor e erratic speed signal</source>
        <translation>Capteur e - signal de vitesse erratique</translation>
    </message>
    <message>
        <source>Sensor e chattering</source>
        <translation>Capteur e - vibrations</translation>
    </message>
    <message>
        <source>Sensor e bad device or component</source>
        <translation>Capteur e - dispositif ou composant défectueux</translation>
    </message>
    <message>
        <source>Sensor e wheel speed oscillating</source>
        <translation>Capteur e - vitesse de roue oscillante</translation>
    </message>
    <message>
        <source>Sensor e sensor not found</source>
        <translation>Capteur e - capteur introuvable</translation>
    </message>
    <message>
        <source>Sensor f air gap too large</source>
        <translation>Capteur f - entrefer trop grand</translation>
    </message>
    <message>
        <source>Sensor f wheel speed diff.</source>
        <translation>Capteur f - différence de vitesse de roue</translation>
    </message>
    <message>
        <source>Sensor f short to 12V</source>
        <translation>Capteur f - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Sensor f short to ground</source>
        <translation>Capteur f - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Sensor f open circuit</source>
        <translation>Capteur f - circuit ouvert</translation>
    </message>
    <message>
        <source>Sensor f open or short circuit</source>
        <translation>Capteur f - circuit ouvert ou court-circuit</translation>
    </message>
    <message>
        <source>Sensor f tone wheel defect</source>
        <translation>Capteur f - défaut de couronne dentée</translation>
    </message>
    <message>
        <source>Sensor f wheel slip</source>
        <translation>Capteur f - glissement de roue</translation>
    </message>
    <message>
        <source>Sensor f no speed</source>
        <translation>Capteur f - aucune vitesse</translation>
    </message>
    <message>
        <source>Sensor f erratic speed signal</source>
        <translation>Capteur f - signal de vitesse erratique</translation>
    </message>
    <message>
        <source>Sensor f chattering</source>
        <translation>Capteur f - vibrations</translation>
    </message>
    <message>
        <source>Sensor f bad device or component</source>
        <translation>Capteur f - dispositif ou composant défectueux</translation>
    </message>
    <message>
        <source>Sensor f wheel speed oscillating</source>
        <translation>Capteur f - vitesse de roue oscillante</translation>
    </message>
    <message>
        <source>Sensor f sensor not found</source>
        <translation>Capteur f - capteur introuvable</translation>
    </message>
    <message>
        <source>ABS relay valve - short to 12V</source>
        <translation>Valve relais ABS - court-circuit au +12V</translation>
    </message>
    <message>
        <source>ABS relay valve - short to ground</source>
        <translation>Valve relais ABS - court-circuit à la masse</translation>
    </message>
    <message>
        <source>ABS relay valve - open circuit</source>
        <translation>Valve relais ABS - circuit ouvert</translation>
    </message>
    <message>
        <source>ABS relay valve - short to 12V or grnd</source>
        <translation>Valve relais ABS - court-circuit au +12V ou à la masse</translation>
    </message>
    <message>
        <source>H2 modulator - short to 12V</source>
        <translation>Modulateur H2 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>H2 modulator - short to ground</source>
        <translation>Modulateur H2 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>H2 modulator - open circuit</source>
        <translation>Modulateur H2 - circuit ouvert</translation>
    </message>
    <message>
        <source>H2 modulator - short to 12V or grnd</source>
        <translation>Modulateur H2 - court-circuit au +12V ou à la masse</translation>
    </message>
    <message>
        <source>H2 modulator - circuit failure</source>
        <translation>Modulateur H2 - défaillance du circuit</translation>
    </message>
    <message>
        <source>H1 modulator - short to 12V</source>
        <translation>Modulateur H1 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>H1 modulator - short to ground</source>
        <translation>Modulateur H1 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>H1 modulator - open circuit</source>
        <translation>Modulateur H1 - circuit ouvert</translation>
    </message>
    <message>
        <source>H1 modulator - short to 12V or grnd</source>
        <translation>Modulateur H1 - court-circuit au +12V ou à la masse</translation>
    </message>
    <message>
        <source>H1 modulator - circuit failure</source>
        <translation>Modulateur H1 - défaillance du circuit</translation>
    </message>
    <message>
        <source>EBS relay/Redundancy - short to 12V</source>
        <translation>Valve relais EBS/Redondance - court-circuit au +12V</translation>
    </message>
    <message>
        <source>EBS relay/Redundancy - short to ground</source>
        <translation>Valve relais EBS/Redondance - court-circuit à la masse</translation>
    </message>
    <message>
        <source>EBS relay/Redundancy - open circuit</source>
        <translation>Valve relais EBS/Redondance - circuit ouvert</translation>
    </message>
    <message>
        <source>EBS relay/Redundancy - short to 12V or grnd</source>
        <translation>Valve relais EBS/Redondance - court-circuit au +12V ou à la masse</translation>
    </message>
    <message>
        <source>EBS relay/Pressure sensor - short to 12V</source>
        <translation>Valve relais EBS/Capteur de pression - court-circuit au +12V</translation>
    </message>
    <message>
        <source>EBS relay/Pressure sensor - short to ground</source>
        <translation>Valve relais EBS/Capteur de pression - court-circuit à la masse</translation>
    </message>
    <message>
        <source>EBS relay/Pressure sensor - defective valve or cable</source>
        <translation>Valve relais EBS/Capteur de pression - valve ou câble défectueux</translation>
    </message>
    <message>
        <source>EBS relay/Pressure sensor - pressure differential</source>
        <translation>Valve relais EBS/Capteur de pression - différence de pression</translation>
    </message>
    <message>
        <source>EBS relay/Pressure sensor - residual pressure</source>
        <translation>Valve relais EBS/Capteur de pression - pression résiduelle</translation>
    </message>
    <message>
        <source>Trailer modulator/Redundancy - short to 12V</source>
        <translation>Modulateur de remorque/Redondance - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Trailer modulator/Redundancy - short to ground</source>
        <translation>Modulateur de remorque/Redondance - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Trailer modulator/Redundancy - open circuit</source>
        <translation>Modulateur de remorque/Redondance - circuit ouvert</translation>
    </message>
    <message>
        <source>Trailer modulator/Redundancy - short to 12V or grnd</source>
        <translation>Modulateur de remorque/Redondance - court-circuit au +12V ou à la masse</translation>
    </message>
    <message>
        <source>Trailer modulator/Redundancy - circuit failure</source>
        <translation>Modulateur de remorque/Redondance - défaillance du circuit</translation>
    </message>
    <message>
        <source>Pressure sensor - pressure deviation</source>
        <translation>Capteur de pression - écart de pression</translation>
    </message>
    <message>
        <source>Pressure sensor - short to 12V</source>
        <translation>Capteur de pression - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Pressure sensor - short to ground</source>
        <translation>Capteur de pression - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Pressure sensor - residual pressure</source>
        <translation>Capteur de pression - pression résiduelle</translation>
    </message>
    <message>
        <source>Pressure sensor - pressure differential</source>
        <translation>Capteur de pression - différence de pression</translation>
    </message>
    <message>
        <source>Axle load sensor - irregular data</source>
        <translation>Capteur de charge d&apos;essieu - données irrégulières</translation>
    </message>
    <message>
        <source>Axle load sensor - short to 12V</source>
        <translation>Capteur de charge d&apos;essieu - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Axle load sensor - short to ground</source>
        <translation>Capteur de charge d&apos;essieu - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Axle load sensor - open circuit</source>
        <translation>Capteur de charge d&apos;essieu - circuit ouvert</translation>
    </message>
    <message>
        <source>Axle load sensor - pressure too low</source>
        <translation>Capteur de charge d&apos;essieu - pression trop faible</translation>
    </message>
    <message>
        <source>Axle load sensor - not calibrated</source>
        <translation>Capteur de charge d&apos;essieu - non calibré</translation>
    </message>
    <message>
        <source>Wear sensor - short to 12V</source>
        <translation>Capteur d&apos;usure - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Wear sensor - worn brake lining</source>
        <translation>Capteur d&apos;usure - garniture de frein usée</translation>
    </message>
    <message>
        <source>Redundant braking - ABS still active</source>
        <translation>Freinage par redondance - ABS encore actif</translation>
    </message>
    <message>
        <source>Pneumatic control line - residual pressure</source>
        <translation>Conduite de commande pneumatique - pression résiduelle</translation>
    </message>
    <message>
        <source>Internal pressure sensor - value too high</source>
        <translation>Capteur de pression interne - valeur trop élevée</translation>
    </message>
    <message>
        <source>Internal pressure sensor - value too low</source>
        <translation>Capteur de pression interne - valeur trop faible</translation>
    </message>
    <message>
        <source>Internal pressure sensor - short to 12V</source>
        <translation>Capteur de pression interne - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Internal pressure sensor - short to ground</source>
        <translation>Capteur de pression interne - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Internal pressure sensor - open circuit</source>
        <translation>Capteur de pression interne - circuit ouvert</translation>
    </message>
    <message>
        <source>Internal pressure sensor - defective cable</source>
        <translation>Capteur de pression interne - câble défectueux</translation>
    </message>
    <message>
        <source>Internal pressure sensor - fault when driving</source>
        <translation>Capteur de pression interne - défaut pendant le roulage</translation>
    </message>
    <message>
        <source>External pressure sensor - value too high</source>
        <translation>Capteur de pression externe - valeur trop élevée</translation>
    </message>
    <message>
        <source>External pressure sensor - value too low</source>
        <translation>Capteur de pression externe - valeur trop faible</translation>
    </message>
    <message>
        <source>External pressure sensor - short to 12V</source>
        <translation>Capteur de pression externe - court-circuit au +12V</translation>
    </message>
    <message>
        <source>External pressure sensor - short to ground</source>
        <translation>Capteur de pression externe - court-circuit à la masse</translation>
    </message>
    <message>
        <source>External pressure sensor - open circuit</source>
        <translation>Capteur de pression externe - circuit ouvert</translation>
    </message>
    <message>
        <source>External pressure sensor - defective cable</source>
        <translation>Capteur de pression externe - câble défectueux</translation>
    </message>
    <message>
        <source>External pressure sensor - fault when driving</source>
        <translation>Capteur de pression externe - défaut pendant le roulage</translation>
    </message>
    <message>
        <source>Lateral acceleration sensor - value too high</source>
        <translation>Capteur d&apos;accélération latérale - valeur trop élevée</translation>
    </message>
    <message>
        <source>Lateral acceleration sensor - value too low</source>
        <translation>Capteur d&apos;accélération latérale - valeur trop faible</translation>
    </message>
    <message>
        <source>Lateral acceleration sensor - irregular data</source>
        <translation>Capteur d&apos;accélération latérale - données irrégulières</translation>
    </message>
    <message>
        <source>Lateral acceleration sensor - bad signal</source>
        <translation>Capteur d&apos;accélération latérale - mauvais signal</translation>
    </message>
    <message>
        <source>Lateral acceleration sensor - fault when driving</source>
        <translation>Capteur d&apos;accélération latérale - défaut pendant le roulage</translation>
    </message>
    <message>
        <source>Slider status - short to 12V</source>
        <translation>État du tandem coulissant - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Slot GIO In/Out - short to 12V</source>
        <translation>Connecteur GIO entrée/sortie - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Slot GIO In/Out - short to ground</source>
        <translation>Connecteur GIO entrée/sortie - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Slot GIO In/Out - parameter not set</source>
        <translation>Connecteur GIO entrée/sortie - paramètre non défini</translation>
    </message>
    <message>
        <source>GIO analog - short to 12V</source>
        <translation>GIO analogique - court-circuit au +12V</translation>
    </message>
    <message>
        <source>GIO analog - short to ground</source>
        <translation>GIO analogique - court-circuit à la masse</translation>
    </message>
    <message>
        <source>GIO analog - open circuit</source>
        <translation>GIO analogique - circuit ouvert</translation>
    </message>
    <message>
        <source>GIO digital - short to 12V</source>
        <translation>GIO numérique - court-circuit au +12V</translation>
    </message>
    <message>
        <source>GIO digital - short to ground</source>
        <translation>GIO numérique - court-circuit à la masse</translation>
    </message>
    <message>
        <source>GIO digital - open circuit</source>
        <translation>GIO numérique - circuit ouvert</translation>
    </message>
    <message>
        <source>GIO Slot 5 - short to 12V</source>
        <translation>Connecteur GIO 5 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>GIO Slot 5 - short to ground</source>
        <translation>Connecteur GIO 5 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>GIO Slot 5 - parameter not set</source>
        <translation>Connecteur GIO 5 - paramètre non défini</translation>
    </message>
    <message>
        <source>GIO Slot 4 - short to 12V</source>
        <translation>Connecteur GIO 4 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>GIO Slot 4 - short to ground</source>
        <translation>Connecteur GIO 4 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>GIO Slot 4 - parameter not set</source>
        <translation>Connecteur GIO 4 - paramètre non défini</translation>
    </message>
    <message>
        <source>GIO Slot 3 - short to 12V</source>
        <translation>Connecteur GIO 3 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>GIO Slot 3 - short to ground</source>
        <translation>Connecteur GIO 3 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>GIO Slot 3 - parameter not set</source>
        <translation>Connecteur GIO 3 - paramètre non défini</translation>
    </message>
    <message>
        <source>GIO Slot 2 - short to 12V</source>
        <translation>Connecteur GIO 2 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>GIO Slot 2 - short to ground</source>
        <translation>Connecteur GIO 2 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>GIO Slot 2 - parameter not set</source>
        <translation>Connecteur GIO 2 - paramètre non défini</translation>
    </message>
    <message>
        <source>GIO Slot 1 - short to 12V</source>
        <translation>Connecteur GIO 1 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>GIO Slot 1 - short to ground</source>
        <translation>Connecteur GIO 1 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>GIO Slot 1 - parameter not set</source>
        <translation>Connecteur GIO 1 - paramètre non défini</translation>
    </message>
    <message>
        <source>GIO Slot 6 - short to 12V</source>
        <translation>Connecteur GIO 6 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>GIO Slot 6 - short to ground</source>
        <translation>Connecteur GIO 6 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>GIO Slot 6 - parameter not set</source>
        <translation>Connecteur GIO 6 - paramètre non défini</translation>
    </message>
    <message>
        <source>GIO Slot 7 - short to 12V</source>
        <translation>Connecteur GIO 7 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>GIO Slot 7 - short to ground</source>
        <translation>Connecteur GIO 7 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>GIO Slot 7 - parameter not set</source>
        <translation>Connecteur GIO 7 - paramètre non défini</translation>
    </message>
    <message>
        <source>ABS Sensor - Memory bit</source>
        <translation>Capteur ABS - bit de mémoire</translation>
    </message>
    <message>
        <source>Slot subsystem - short to 12V</source>
        <translation>Connecteur sous-système - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Slot subsystem - short to ground</source>
        <translation>Connecteur sous-système - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Slot subsystem - parameter not set</source>
        <translation>Connecteur sous-système - paramètre non défini</translation>
    </message>
    <message>
        <source>Tension button - defective cable</source>
        <translation>Bouton de tension mécanique - câble défectueux</translation>
    </message>
    <message>
        <source>Forced lowering button - digital</source>
        <translation>Bouton d&apos;abaissement forcé - numérique</translation>
    </message>
    <message>
        <source>Relaxation button - digital</source>
        <translation>Bouton de détente - numérique</translation>
    </message>
    <message>
        <source>Diagnostic socket - digital</source>
        <translation>Prise de diagnostic - numérique</translation>
    </message>
    <message>
        <source>Telematics - digital</source>
        <translation>Télématique - numérique</translation>
    </message>
    <message>
        <source>TPMX - digital</source>
        <translation>TPMX - numérique</translation>
    </message>
    <message>
        <source>SLEV control unit - bad connection</source>
        <translation>Unité de commande SLEV - mauvaise connexion</translation>
    </message>
    <message>
        <source>SLEV control unit - defective cable</source>
        <translation>Unité de commande SLEV - câble défectueux</translation>
    </message>
    <message>
        <source>Axle load sensor c-d - defective cable</source>
        <translation>Capteur de charge d&apos;essieu c-d - câble défectueux</translation>
    </message>
    <message>
        <source>Axle load sensor c-d - pressure too low</source>
        <translation>Capteur de charge d&apos;essieu c-d - pression trop faible</translation>
    </message>
    <message>
        <source>Axle load sensor e-f - defective cable</source>
        <translation>Capteur de charge d&apos;essieu e-f - câble défectueux</translation>
    </message>
    <message>
        <source>Axle load sensor e-f - pressure too low</source>
        <translation>Capteur de charge d&apos;essieu e-f - pression trop faible</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - data is irregular</source>
        <translation>Capteur de course essieu c-d - données irrégulières</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - short to 12V detected</source>
        <translation>Capteur de course essieu c-d - court-circuit au +12V détecté</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - short to ground detected</source>
        <translation>Capteur de course essieu c-d - court-circuit à la masse détecté</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - defective cable</source>
        <translation>Capteur de course essieu c-d - câble défectueux</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - value too small</source>
        <translation>Capteur de course essieu c-d - valeur trop petite</translation>
    </message>
    <message>
        <source>Distance sensor axle c-d - not calibrated</source>
        <translation>Capteur de course essieu c-d - non calibré</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - data is irregular</source>
        <translation>Capteur de course essieu e-f - données irrégulières</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - short to 12V</source>
        <translation>Capteur de course essieu e-f - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - short to ground</source>
        <translation>Capteur de course essieu e-f - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - defective cable</source>
        <translation>Capteur de course essieu e-f - câble défectueux</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - value too small</source>
        <translation>Capteur de course essieu e-f - valeur trop petite</translation>
    </message>
    <message>
        <source>Distance sensor axle e-f - not calibrated</source>
        <translation>Capteur de course essieu e-f - non calibré</translation>
    </message>
    <message>
        <source>Freely programmable function 3</source>
        <translation>Fonction librement programmable 3</translation>
    </message>
    <message>
        <source>Freely programmable function 2</source>
        <translation>Fonction librement programmable 2</translation>
    </message>
    <message>
        <source>Freely programmable function 1</source>
        <translation>Fonction librement programmable 1</translation>
    </message>
    <message>
        <source>Unloading level switch - short to 12V</source>
        <translation>Contacteur de niveau de déchargement - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Speed signal output - short to 12V</source>
        <translation>Sortie du signal de vitesse - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Speed signal output - short to ground</source>
        <translation>Sortie du signal de vitesse - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Speed signal output - open circuit</source>
        <translation>Sortie du signal de vitesse - circuit ouvert</translation>
    </message>
    <message>
        <source>Distance sensor e-f - incorrect data</source>
        <translation>Capteur de course e-f - données incorrectes</translation>
    </message>
    <message>
        <source>Distance sensor e-f - short to 12V</source>
        <translation>Capteur de course e-f - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Distance sensor e-f - short to ground</source>
        <translation>Capteur de course e-f - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Distance sensor e-f - open circuit</source>
        <translation>Capteur de course e-f - circuit ouvert</translation>
    </message>
    <message>
        <source>Distance sensor c-d - incorrect data</source>
        <translation>Capteur de course c-d - données incorrectes</translation>
    </message>
    <message>
        <source>Distance sensor c-d - short to 12V</source>
        <translation>Capteur de course c-d - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Distance sensor c-d - short to ground</source>
        <translation>Capteur de course c-d - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Distance sensor c-d - open circuit</source>
        <translation>Capteur de course c-d - circuit ouvert</translation>
    </message>
    <message>
        <source>SLEV valve - short to 12V</source>
        <translation>Valve SLEV - court-circuit au +12V</translation>
    </message>
    <message>
        <source>SLEV valve - short to ground</source>
        <translation>Valve SLEV - court-circuit à la masse</translation>
    </message>
    <message>
        <source>SLEV valve - open circuit</source>
        <translation>Valve SLEV - circuit ouvert</translation>
    </message>
    <message>
        <source>Steady positive voltage 2 - short to 12V</source>
        <translation>Tension positive permanente 2 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Steady positive voltage 2 - short to ground</source>
        <translation>Tension positive permanente 2 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Steady positive voltage 2 - open circuit</source>
        <translation>Tension positive permanente 2 - circuit ouvert</translation>
    </message>
    <message>
        <source>Steady pos. voltage 1 - short to 12V</source>
        <translation>Tension pos. permanente 1 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Steady pos. voltage 1 - short to grnd</source>
        <translation>Tension pos. permanente 1 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Steady pos. voltage 1 - open circuit</source>
        <translation>Tension pos. permanente 1 - circuit ouvert</translation>
    </message>
    <message>
        <source>OVG active signal - short to 12V</source>
        <translation>Signal « OVG actif » - court-circuit au +12V</translation>
    </message>
    <message>
        <source>OVG active signal - short to ground</source>
        <translation>Signal « OVG actif » - court-circuit à la masse</translation>
    </message>
    <message>
        <source>OVG active signal - open circuit</source>
        <translation>Signal « OVG actif » - circuit ouvert</translation>
    </message>
    <message>
        <source>ABS active signal - short to 12V</source>
        <translation>Signal « ABS actif » - court-circuit au +12V</translation>
    </message>
    <message>
        <source>ABS active signal - short to ground</source>
        <translation>Signal « ABS actif » - court-circuit à la masse</translation>
    </message>
    <message>
        <source>ABS active signal - open circuit</source>
        <translation>Signal « ABS actif » - circuit ouvert</translation>
    </message>
    <message>
        <source>Road finisher brake - short to 12V</source>
        <translation>Frein pour finisseur - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Speed switch 2 - short to 12V</source>
        <translation>Contacteur de vitesse 2 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Speed switch 2 - short to ground</source>
        <translation>Contacteur de vitesse 2 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Speed switch 2 - open circuit</source>
        <translation>Contacteur de vitesse 2 - circuit ouvert</translation>
    </message>
    <message>
        <source>Speed switch 1 - short to 12V</source>
        <translation>Contacteur de vitesse 1 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Speed switch 1 - short to ground</source>
        <translation>Contacteur de vitesse 1 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Speed switch 1 - open circuit</source>
        <translation>Contacteur de vitesse 1 - circuit ouvert</translation>
    </message>
    <message>
        <source>Residual pressure valve - short to 12V</source>
        <translation>Valve de pression résiduelle - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Residual pressure valve - short to ground</source>
        <translation>Valve de pression résiduelle - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Residual pressure valve - open circuit</source>
        <translation>Valve de pression résiduelle - circuit ouvert</translation>
    </message>
    <message>
        <source>Lift axle valve 2 - short to 12V</source>
        <translation>Valve d&apos;essieu relevable 2 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Lift axle valve 2 - short to ground</source>
        <translation>Valve d&apos;essieu relevable 2 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Lift axle valve 2 - open circuit</source>
        <translation>Valve d&apos;essieu relevable 2 - circuit ouvert</translation>
    </message>
    <message>
        <source>Lift axle valve 1 - short to 12V</source>
        <translation>Valve d&apos;essieu relevable 1 - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Lift axle valve 1 - short to ground</source>
        <translation>Valve d&apos;essieu relevable 1 - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Lift axle valve 1 - open circuit</source>
        <translation>Valve d&apos;essieu relevable 1 - circuit ouvert</translation>
    </message>
    <message>
        <source>Supply pressure sensor - value too high</source>
        <translation>Capteur de pression d&apos;alimentation - valeur trop élevée</translation>
    </message>
    <message>
        <source>Supply pressure sensor - value too low</source>
        <translation>Capteur de pression d&apos;alimentation - valeur trop faible</translation>
    </message>
    <message>
        <source>Supply pressure sensor - short to 12V</source>
        <translation>Capteur de pression d&apos;alimentation - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Supply pressure sensor - short to ground</source>
        <translation>Capteur de pression d&apos;alimentation - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Supply pressure sensor - err while driving</source>
        <translation>Capteur de pression d&apos;alimentation - erreur pendant le roulage</translation>
    </message>
    <message>
        <source>KRN - short to 12V</source>
        <translation>KRN - court-circuit au +12V</translation>
    </message>
    <message>
        <source>KRN - short to ground</source>
        <translation>KRN - court-circuit à la masse</translation>
    </message>
    <message>
        <source>KRN - open circuit</source>
        <translation>KRN - circuit ouvert</translation>
    </message>
    <message>
        <source>SLEV - short to 12V</source>
        <translation>SLEV - court-circuit au +12V</translation>
    </message>
    <message>
        <source>SLEV - short to ground</source>
        <translation>SLEV - court-circuit à la masse</translation>
    </message>
    <message>
        <source>SLEV - open circuit</source>
        <translation>SLEV - circuit ouvert</translation>
    </message>
    <message>
        <source>SLEV - communications interrupted</source>
        <translation>SLEV - communication interrompue</translation>
    </message>
    <message>
        <source>SLEV calibration - incorrect data</source>
        <translation>Calibrage SLEV - données incorrectes</translation>
    </message>
    <message>
        <source>GIO/SLEV - irregular data</source>
        <translation>GIO/SLEV - données irrégulières</translation>
    </message>
    <message>
        <source>GIO/SLEV - short to 12V</source>
        <translation>GIO/SLEV - court-circuit au +12V</translation>
    </message>
    <message>
        <source>GIO/SLEV - short to ground</source>
        <translation>GIO/SLEV - court-circuit à la masse</translation>
    </message>
    <message>
        <source>GIO/SLEV - open circuit</source>
        <translation>GIO/SLEV - circuit ouvert</translation>
    </message>
    <message>
        <source>GIO/SLEV - missing parameters</source>
        <translation>GIO/SLEV - paramètres manquants</translation>
    </message>
    <message>
        <source>J2497 data link - irregular data</source>
        <translation>Liaison de données J2497 - données irrégulières</translation>
    </message>
    <message>
        <source>J2497 data link - residual pressure</source>
        <translation>Liaison de données J2497 - pression résiduelle</translation>
    </message>
    <message>
        <source>J1708 data link - irregular data</source>
        <translation>Liaison de données J1708 - données irrégulières</translation>
    </message>
    <message>
        <source>J1708 data link - residual pressure</source>
        <translation>Liaison de données J1708 - pression résiduelle</translation>
    </message>
    <message>
        <source>Trailer data link - interference in data reception</source>
        <translation>Liaison de données remorque - perturbation de la réception des données</translation>
    </message>
    <message>
        <source>Trailer data link - bad or swapped cable</source>
        <translation>Liaison de données remorque - câble défectueux ou inversé</translation>
    </message>
    <message>
        <source>Power supply - value too low</source>
        <translation>Alimentation électrique - valeur trop faible</translation>
    </message>
    <message>
        <source>Power supply - stop light power</source>
        <translation>Alimentation électrique - alimentation par les feux stop</translation>
    </message>
    <message>
        <source>Power supply - value too high</source>
        <translation>Alimentation électrique - valeur trop élevée</translation>
    </message>
    <message>
        <source>Power supply - short to ground</source>
        <translation>Alimentation électrique - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Power supply - circuit interrupt</source>
        <translation>Alimentation électrique - circuit interrompu</translation>
    </message>
    <message>
        <source>Power supply - undervoltage</source>
        <translation>Alimentation électrique - tension insuffisante</translation>
    </message>
    <message>
        <source>Parameter setting - irregular data</source>
        <translation>Paramétrage - données irrégulières</translation>
    </message>
    <message>
        <source>Parameter setting - checksum error</source>
        <translation>Paramétrage - erreur de somme de contrôle</translation>
    </message>
    <message>
        <source>Parameter setting - start-up not run</source>
        <translation>Paramétrage - mise en service non effectuée</translation>
    </message>
    <message>
        <source>Trailer modulator - short to 12V</source>
        <translation>Modulateur de remorque - court-circuit au +12V</translation>
    </message>
    <message>
        <source>Trailer modulator - short to Ground</source>
        <translation>Modulateur de remorque - court-circuit à la masse</translation>
    </message>
    <message>
        <source>Trailer modulator - service needed</source>
        <translation>Modulateur de remorque - entretien nécessaire</translation>
    </message>
    <message>
        <source>Trailer modulator - defective</source>
        <translation>Modulateur de remorque - défectueux</translation>
    </message>
    <message>
        <source>System error</source>
        <translation>Erreur système</translation>
    </message>
    <message>
        <source>Pressure measurement value too high. Check for kinked line.  Compare pressure gauge reading with Lorimet value of the pressure sensor.</source>
        <translation>Valeur de pression mesurée trop élevée. Vérifier si la conduite est pliée. Comparer la valeur du manomètre avec la valeur Lorimet du capteur de pression.</translation>
    </message>
    <message>
        <source>Pressure measurement value too low. Check for kinked line or blocked filter.  Compare pressure gauge reading with Lorimet value of the pressure sensor.</source>
        <translation>Valeur de pression mesurée trop faible. Vérifier si la conduite est pliée ou le filtre colmaté. Comparer la valeur du manomètre avec la valeur Lorimet du capteur de pression.</translation>
    </message>
    <message>
        <source>The pressure in the support bellows of the air suspension is too low when driving.</source>
        <translation>La pression dans les soufflets porteurs de la suspension pneumatique est trop faible pendant le roulage.</translation>
    </message>
    <message>
        <source>Deviation between the pneumatic control pressure and control pressure via CAN. Was the yellow coupling head connected the whole time? Check the towing vehicle.</source>
        <translation>Écart entre la pression de commande pneumatique et la pression de commande via CAN. La tête d&apos;accouplement jaune est-elle restée branchée tout le temps ? Contrôler le véhicule tracteur.</translation>
    </message>
    <message>
        <source>Open or short circuit is detected.  Cable or speed sensor is defective.</source>
        <translation>Circuit ouvert ou court-circuit détecté. Câble ou capteur de vitesse défectueux.</translation>
    </message>
    <message>
        <source>Switch ignition off for 5 seconds.</source>
        <translation>Couper le contact pendant 5 secondes.</translation>
    </message>
    <message>
        <source>Push sensor into holding block for zero gap to tooth wheel.  Check tone ring for damaged teeth.  Check for excessive wheel bearing play.</source>
        <translation>Pousser le capteur dans son support jusqu&apos;au contact avec la couronne dentée (entrefer nul). Vérifier si la couronne dentée a des dents endommagées. Vérifier si le jeu de roulement de roue est excessif.</translation>
    </message>
    <message>
        <source>Impermissible modulator position.  Check the installation position.  Calibrate the installation position after changing the modulator angle.</source>
        <translation>Position du modulateur non admissible. Vérifier la position de montage. Calibrer la position de montage après toute modification de l&apos;angle du modulateur.</translation>
    </message>
    <message>
        <source>A component for which there are no parameter settings was detected at slot GIO In/Out.</source>
        <translation>Un composant sans paramétrage a été détecté au connecteur GIO entrée/sortie.</translation>
    </message>
    <message>
        <source>Speed difference between axles c-d and e-f too high.  Check whether the number of tone wheel teeth and tire diameter are correct.</source>
        <translation>Différence de vitesse trop élevée entre les essieux c-d et e-f. Vérifier si le nombre de dents de la couronne dentée et le diamètre des pneus sont corrects.</translation>
    </message>
    <message>
        <source>Calibrate the distance sensor.</source>
        <translation>Calibrer le capteur de course.</translation>
    </message>
    <message>
        <source>There is a fault in the freely programmable function.</source>
        <translation>Défaut dans la fonction librement programmable.</translation>
    </message>
    <message>
        <source>Check tone ring/hub for eccentricity. If tone ring/hub is eccentric, replace faulty part.</source>
        <translation>Vérifier l&apos;excentricité de la couronne dentée/du moyeu. Si la couronne dentée/le moyeu est excentré, remplacer la pièce défectueuse.</translation>
    </message>
    <message>
        <source>Check cable for pinch/cut and check connectors.</source>
        <translation>Vérifier si le câble est pincé/coupé et contrôler les connecteurs.</translation>
    </message>
    <message>
        <source>Check Axle Load Sensor cable for pinch/cut and check connectors.</source>
        <translation>Vérifier si le câble du capteur de charge d&apos;essieu est pincé/coupé et contrôler les connecteurs.</translation>
    </message>
    <message>
        <source>Turn ignition off for 5 seconds.</source>
        <translation>Couper le contact pendant 5 secondes.</translation>
    </message>
    <message>
        <source>The wear sensor or the cable between the modulator and the wear sensor is faulty.</source>
        <translation>Le capteur d&apos;usure ou le câble entre le modulateur et le capteur d&apos;usure est défectueux.</translation>
    </message>
    <message>
        <source>At least one brake lining is worn.  Check linings and wear sensors and replace if necessary. It is also possible that the cable is not connected or is defective.</source>
        <translation>Au moins une garniture de frein est usée. Contrôler les garnitures et les capteurs d&apos;usure et les remplacer si nécessaire. Il est également possible que le câble soit débranché ou défectueux.</translation>
    </message>
    <message>
        <source>Braking with redundancy pressure - ABS still active.</source>
        <translation>Freinage avec pression de redondance - ABS encore actif.</translation>
    </message>
    <message>
        <source>Pressure differential &gt; 30 psi between pressure sensors in the EBS RV and the modulator during the standstill function. Is a line kinked?  If the pneumatic system is OK, fit a new pressure sensor.</source>
        <translation>Différence de pression &gt; 30 psi entre les capteurs de pression de la valve relais EBS et du modulateur pendant la fonction « véhicule à l&apos;arrêt ». Une conduite est-elle pliée ? Si le système pneumatique est en bon état, monter un capteur de pression neuf.</translation>
    </message>
    <message>
        <source>9.5 to 14.0 volts DC required to proceed.  Be sure to use a filtered power supply or battery.  DO NOT USE A BATTERY CHARGER!</source>
        <translation>9.5 à 14.0 V CC sont nécessaires pour continuer. Utiliser impérativement une alimentation électrique filtrée ou une batterie. NE PAS UTILISER DE CHARGEUR DE BATTERIE !</translation>
    </message>
    <message>
        <source>9.5 to 14.0 volts DC required to proceed. Be sure to use a filtered power supply or battery. DO NOT USE A BATTERY CHARGER!</source>
        <translation>9.5 à 14.0 V CC sont nécessaires pour continuer. Utiliser impérativement une alimentation électrique filtrée ou une batterie. NE PAS UTILISER DE CHARGEUR DE BATTERIE !</translation>
    </message>
    <message>
        <source>Does power supply have an adequate current rating? Check that all power and ground connections are solid. 9.5 to 14.0 volts DC required at ECU.</source>
        <translation>L&apos;intensité nominale de l&apos;alimentation électrique est-elle suffisante ? Vérifier que toutes les connexions d&apos;alimentation électrique et de masse sont bien serrées. 9.5 à 14.0 V CC nécessaires à l&apos;ECU.</translation>
    </message>
    <message>
        <source>Call Norvick for customer support and return authorization number if problem persists.</source>
        <translation>Si le problème persiste, contacter Norvick pour l&apos;assistance clientèle et un numéro d&apos;autorisation de retour.</translation>
    </message>
    <message>
        <source>Vehicle has not been put into operation.  Please run initial start-up routine.</source>
        <translation>Le véhicule n&apos;a pas été mis en service. Veuillez exécuter la procédure de première mise en service.</translation>
    </message>
    <message>
        <source>Residual pressure &gt; 7 psi at connection 2 of the EBS relay valve during motion with brakes released.</source>
        <translation>Pression résiduelle &gt; 7 psi au raccord 2 de la valve relais EBS pendant le roulage, freins desserrés.</translation>
    </message>
    <message>
        <source>Pressure deviation between connections 2.1 and 2.2 of the modulator &gt; 0.5 bar during braking. Is there a pressure leak through the leaking Ovalock brake actuator? Is the exhaust iced up? Fault condition: Pressure difference in EBS regulation right/left &gt; .</source>
        <translation>Écart de pression &gt; 0.5 bar entre les raccords 2.1 et 2.2 du modulateur pendant le freinage. Y a-t-il une perte de pression due à un cylindre de frein Ovalock non étanche ? L&apos;orifice d&apos;échappement est-il bouché par la glace ? Condition du défaut : différence de pression droite/gauche dans la régulation EBS &gt; .</translation>
    </message>
    <message>
        <source>Residual pressure &gt; 15 psi in the line to the brake cylinder.  If this fault can be ruled out: fit a new modulator.</source>
        <translation>Pression résiduelle &gt; 15 psi dans la conduite vers le cylindre de frein. Si ce défaut peut être exclu : monter un modulateur neuf.</translation>
    </message>
    <message>
        <source>Pressure differential &gt; 2 bar between the two brake pressure sensors in the modulator during the standstill function.  Is there a severe leak on a brake cylinder? If the pneumatic system is OK, fit a new modulator.</source>
        <translation>Différence de pression &gt; 2 bar entre les deux capteurs de pression de freinage du modulateur pendant la fonction « véhicule à l&apos;arrêt ». Y a-t-il une fuite importante à un cylindre de frein ? Si le système pneumatique est en bon état, monter un modulateur neuf.</translation>
    </message>
    <message>
        <source>Residual pressure &gt; 7 psi at connection 2.1 or 2.2 of the modulator during motion with brakes released.</source>
        <translation>Pression résiduelle &gt; 7 psi au raccord 2.1 ou 2.2 du modulateur pendant le roulage, freins desserrés.</translation>
    </message>
    <message>
        <source>No axle load transmitted from the ECU.</source>
        <translation>Aucune charge d&apos;essieu transmise par l&apos;ECU.</translation>
    </message>
    <message>
        <source>GIO shorted to battery.  Call Norvick for customer support.</source>
        <translation>GIO en court-circuit au plus batterie. Appeler l&apos;assistance clientèle Norvick.</translation>
    </message>
    <message>
        <source>GIO shorted to ground.  Call Norvick for customer support.</source>
        <translation>GIO en court-circuit à la masse. Appeler l&apos;assistance clientèle Norvick.</translation>
    </message>
    <message>
        <source>GIO cable broken.  Call Norvick for customer support.</source>
        <translation>Câble GIO rompu. Appeler l&apos;assistance clientèle Norvick.</translation>
    </message>
    <message>
        <source>GIO logic failure.  Download the GIO parameter settings again and restart the ECU.  If fault persists, call Norvick for customer support.</source>
        <translation>Défaillance logique GIO. Transférer à nouveau le paramétrage GIO dans l&apos;ECU et redémarrer l&apos;ECU. Si le défaut persiste, appeler l&apos;assistance clientèle Norvick.</translation>
    </message>
    <message>
        <source>The GIO sensor power supply voltage is either too high or too low.  Call Norvick for customer support.</source>
        <translation>La tension d&apos;alimentation du capteur GIO est trop élevée ou trop faible. Appeler l&apos;assistance clientèle Norvick.</translation>
    </message>
    <message>
        <source>The GIO sensor power supply is not on.  Call Norvick for customer support.</source>
        <translation>L&apos;alimentation électrique du capteur GIO n&apos;est pas active. Appeler l&apos;assistance clientèle Norvick.</translation>
    </message>
    <message>
        <source>The pole wheel is eccentric.  Check the concentricity of the pole wheel and replace, if necessary.</source>
        <translation>La couronne dentée est excentrée. Vérifier la concentricité de la couronne dentée et la remplacer si nécessaire.</translation>
    </message>
    <message>
        <source>System configuration error detected. An external valve or two sensors are not being detected. Connect them or reconfigure ECU using reconfigure option from menu.</source>
        <translation>Erreur de configuration du système détectée. Une valve externe ou deux capteurs ne sont pas détectés. Les brancher ou reconfigurer l&apos;ECU avec l&apos;option de reconfiguration du menu.</translation>
    </message>
    <message>
        <source>Erase faults using menu option, power down, power up. If fault repeats, call Norvick customer support for technical support and return authorization claim number.</source>
        <translation>Effacer les défauts avec l&apos;option du menu, couper puis rétablir l&apos;alimentation électrique de l&apos;ECU. Si le défaut se répète, appeler l&apos;assistance clientèle Norvick pour une aide technique et un numéro de demande d&apos;autorisation de retour.</translation>
    </message>
    <message>
        <source>Repair instruction not available for the current fault.</source>
        <translation>Instruction de réparation non disponible pour le défaut actuel.</translation>
    </message>
    <message>
        <source>Axle Loads and Pressures</source>
        <translation>Charges d&apos;essieu et pressions</translation>
    </message>
    <message>
        <source>Trailer</source>
        <translation>Remorque</translation>
    </message>
    <message>
        <source>Tires and Pole Wheels</source>
        <translation>Pneus et couronnes dentées</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vers l&apos;avant</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Words to look for</source>
        <translation>Mots à rechercher</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Pages trouvées</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Page d'aide</translation>
    </message>
    <message>
        <source>The help pages were not found.</source>
        <translation>Les pages d'aide sont introuvables.</translation>
    </message>
    <message>
        <source>They were looked for in these folders:</source>
        <translation>Elles ont été cherchées dans ces dossiers :</translation>
    </message>
    <message>
        <source>No page holds all of these words.</source>
        <translation>Aucune page ne contient tous ces mots.</translation>
    </message>
    <message>
        <source>Zelt Pressure Test</source>
        <translation>Test de pression Zelt</translation>
    </message>
    <message>
        <source>Supply Pressure</source>
        <translation>Pression d&apos;alimentation</translation>
    </message>
    <message>
        <source>Demand Pressure</source>
        <translation>Pression demandée</translation>
    </message>
    <message>
        <source>Control Pressure</source>
        <translation>Pression de commande</translation>
    </message>
    <message>
        <source>Target Pressure</source>
        <translation>Pression de consigne</translation>
    </message>
    <message>
        <source>Actual Pressure</source>
        <translation>Pression mesurée</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Brake Pressure  Laden  Modulator H1</source>
        <translation>Pression de freinage  En charge  Modulateur H1</translation>
    </message>
    <message>
        <source>Brake Pressure  Laden  Modulator H2</source>
        <translation>Pression de freinage  En charge  Modulateur H2</translation>
    </message>
    <message>
        <source>Brake Pressure  Unladen  Modulator H1</source>
        <translation>Pression de freinage  À vide  Modulateur H1</translation>
    </message>
    <message>
        <source>Brake Pressure  Unladen  Modulator H2</source>
        <translation>Pression de freinage  À vide  Modulateur H2</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>Start the Pressure Test</source>
        <translation>Démarrer le test de pression</translation>
    </message>
    <message>
        <source>Close this form</source>
        <translation>Fermer cette fenêtre</translation>
    </message>
    <message>
        <source>Redundancy Test</source>
        <translation>Test de redondance</translation>
    </message>
    <message>
        <source>St&amp;art</source>
        <translation>Dém&amp;arrer</translation>
    </message>
    <message>
        <source>Start the Redundancy Test</source>
        <translation>Démarrer le test de redondance</translation>
    </message>
    <message>
        <source>Stop the Redundancy Test</source>
        <translation>Arrêter le test de redondance</translation>
    </message>
    <message>
        <source>Close the form</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>QOR Plus Sensor Test</source>
        <translation>Test des capteurs QOR Plus</translation>
    </message>
    <message>
        <source>Order Expected</source>
        <translation>Ordre attendu</translation>
    </message>
    <message>
        <source>Order Seen</source>
        <translation>Ordre constaté</translation>
    </message>
    <message>
        <source>  Max Speed (mph)</source>
        <translation>  Vitesse max. (mph)</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>A&amp;rrêter</translation>
    </message>
    <message>
        <source>Start Sensor Test</source>
        <translation>Démarrer le test des capteurs</translation>
    </message>
    <message>
        <source>Stop Sensor Test</source>
        <translation>Arrêter le test des capteurs</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>Vers l&apos;arrière</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>n/a</source>
        <translation>n/d</translation>
    </message>
    <message>
        <source>Sensor Test Warning</source>
        <translation>Avertissement - Test des capteurs</translation>
    </message>
    <message>
        <source>Secure the vehicle to prevent it from running off and release the hand brake.</source>
        <translation>Immobilisez le véhicule pour qu&apos;il ne puisse pas rouler, puis desserrez le frein de stationnement.</translation>
    </message>
    <message>
        <source>This test checks the correct assignment of the ABS sensors to the modulators. </source>
        <translation>Ce test vérifie que les capteurs ABS sont affectés aux bons modulateurs. </translation>
    </message>
    <message>
        <source>It requires that the wheels be spun in a predetermined order.  </source>
        <translation>Il faut faire tourner les roues dans un ordre prédéfini.  </translation>
    </message>
    <message>
        <source>It is applicable to QOR Plus ECU&apos;s only.</source>
        <translation>Il s&apos;applique uniquement aux ECU QOR Plus.</translation>
    </message>
    <message>
        <source>Click START to begin test or CLOSE to exit.</source>
        <translation>Cliquez sur DÉMARRER pour commencer le test ou sur FERMER pour quitter.</translation>
    </message>
    <message>
        <source>Reservoir pressure must be &gt; 72.5 psi.  Increase pressure.</source>
        <translation>La pression du réservoir d&apos;air doit être &gt; 72.5 psi. Augmentez la pression.</translation>
    </message>
    <message>
        <source>The vehicle is not at a standstill! Click STOP to end testing.</source>
        <translation>Le véhicule n&apos;est pas à l&apos;arrêt ! Cliquez sur ARRÊTER pour terminer le test.</translation>
    </message>
    <message>
        <source>Spin Tire 1 as shown on the diagram...</source>
        <translation>Faites tourner la roue 1 comme indiqué sur le schéma...</translation>
    </message>
    <message>
        <source>Now Spin Tire 2 as shown on the diagram...</source>
        <translation>Faites maintenant tourner la roue 2 comme indiqué sur le schéma...</translation>
    </message>
    <message>
        <source>Now Spin Tire 3 as shown on the diagram...</source>
        <translation>Faites maintenant tourner la roue 3 comme indiqué sur le schéma...</translation>
    </message>
    <message>
        <source>Now Spin Tire 4 as shown on the diagram...</source>
        <translation>Faites maintenant tourner la roue 4 comme indiqué sur le schéma...</translation>
    </message>
    <message>
        <source> -Sensor Test-</source>
        <translation> -Test des capteurs-</translation>
    </message>
    <message>
        <source> Sensor Test Error!!!</source>
        <translation> Erreur du test des capteurs !!!</translation>
    </message>
    <message>
        <source>Sensor Order does NOT match configuration! Click STOP to end testing.</source>
        <translation>L&apos;ordre des capteurs ne correspond PAS à la configuration ! Cliquez sur ARRÊTER pour terminer le test.</translation>
    </message>
    <message>
        <source>All Sensors tested, Click STOP to end testing.</source>
        <translation>Tous les capteurs sont testés. Cliquez sur ARRÊTER pour terminer le test.</translation>
    </message>
    <message>
        <source>c</source>
        <translation>c</translation>
    </message>
    <message>
        <source>d</source>
        <translation>d</translation>
    </message>
    <message>
        <source>e</source>
        <translation>e</translation>
    </message>
    <message>
        <source>f</source>
        <translation>f</translation>
    </message>
    <message>
        <source>Do You See The Warning Lamp Blinking ON and OFF?</source>
        <translation>Voyez-vous le voyant d&apos;alerte clignoter (s&apos;allumer et s&apos;éteindre) ?</translation>
    </message>
    <message>
        <source>Status of the Valve Activation</source>
        <translation>État de l&apos;activation des valves</translation>
    </message>
    <message>
        <source>Warning Lamp ON/OFF Indicator</source>
        <translation>Indicateur du voyant d&apos;alerte (ALLUMÉ/ÉTEINT)</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Close the Form</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Test the Warning Lamp</source>
        <translation>Tester le voyant d&apos;alerte</translation>
    </message>
    <message>
        <source>Mechanical Suspension Height Sensor Calibration</source>
        <translation>Calibrage du capteur de hauteur (suspension mécanique)</translation>
    </message>
    <message>
        <source>Attention !!  Calibration must be performed when the vehicle is UNLADEN !!</source>
        <translation>Attention !! Le calibrage doit être effectué lorsque le véhicule est À VIDE !!</translation>
    </message>
    <message>
        <source>Position the lever of the distance sensor horizontally and secure it against the distance sensor linkage.  Then start calibration !</source>
        <translation>Placez le levier du capteur de course à l&apos;horizontale et fixez-le contre la tringlerie du capteur de course. Lancez ensuite le calibrage !</translation>
    </message>
    <message>
        <source>Permissible range for calibration : 1141 - 1486  counts</source>
        <translation>Plage admissible pour le calibrage : 1141 - 1486 incréments</translation>
    </message>
    <message>
        <source>Height sensor c-d :</source>
        <translation>Capteur de hauteur c-d :</translation>
    </message>
    <message>
        <source>Height sensor e-f :</source>
        <translation>Capteur de hauteur e-f :</translation>
    </message>
    <message>
        <source>Calibrate height sensor c-d</source>
        <translation>Calibrer le capteur de hauteur c-d</translation>
    </message>
    <message>
        <source>Calibrate height sensor e-f</source>
        <translation>Calibrer le capteur de hauteur e-f</translation>
    </message>
    <message>
        <source>Height Sensor Calibration</source>
        <translation>Calibrage du capteur de hauteur</translation>
    </message>
    <message>
        <source>Height Sensor Calibration Successful.</source>
        <translation>Calibrage du capteur de hauteur réussi.</translation>
    </message>
    <message>
        <source>Height Sensor Calibration Failed!!</source>
        <translation>Échec du calibrage du capteur de hauteur !!</translation>
    </message>
    <message>
        <source>Trailer 1 On</source>
        <translation>Remorque 1 : allumer</translation>
    </message>
    <message>
        <source>Trailer 1 Off</source>
        <translation>Remorque 1 : éteindre</translation>
    </message>
    <message>
        <source>Customer EOL Bit</source>
        <translation>Bit EOL client</translation>
    </message>
    <message>
        <source>Current Status:</source>
        <translation>État actuel :</translation>
    </message>
    <message>
        <source>EOL Test Passed</source>
        <translation>Test EOL réussi</translation>
    </message>
    <message>
        <source>EOL Test Not Passed</source>
        <translation>Test EOL non réussi</translation>
    </message>
    <message>
        <source>&amp;Set EOL to &apos;Pass&apos;</source>
        <translation>&amp;Positionner EOL sur « Réussi »</translation>
    </message>
    <message>
        <source>Set EOL to &apos;Fail&apos;</source>
        <translation>Positionner EOL sur « Échec »</translation>
    </message>
    <message>
        <source>Lamp Test Failed.  Please resolve issues and run test again.</source>
        <translation>Échec du test du voyant. Veuillez éliminer les causes et relancer le test.</translation>
    </message>
    <message>
        <source>Height Sensor Calibration Failed.  Please resolve issues and run test again.</source>
        <translation>Échec du calibrage du capteur de hauteur. Veuillez éliminer les causes et relancer le test.</translation>
    </message>
    <message>
        <source>Calibration Failed!</source>
        <translation>Échec du calibrage !</translation>
    </message>
    <message>
        <source>Corbel software has determined that the optional Stop Light Activation Cable should have been installed.  </source>
        <translation>Le logiciel Corbel a déterminé que le câble d&apos;activation des feux stop (option) devrait être installé.  </translation>
    </message>
    <message>
        <source>This feature can be tested from the Main screen using the TESTS pull-down.  </source>
        <translation>Cette fonction peut être testée depuis la fenêtre principale avec le menu TESTS.  </translation>
    </message>
    <message>
        <source>You must have functional trailer stop lights attached in order to perform this test.</source>
        <translation>Pour effectuer ce test, des feux stop de remorque en état de marche doivent être branchés.</translation>
    </message>
    <message>
        <source>Setting End-of-line Bit</source>
        <translation>Positionnement du bit de fin de ligne</translation>
    </message>
    <message>
        <source>Unable to clear the End of Line bit.</source>
        <translation>Impossible d&apos;effacer le bit de fin de ligne.</translation>
    </message>
    <message>
        <source>Sign-off Failure</source>
        <translation>Échec de la validation</translation>
    </message>
    <message>
        <source>Sign-off Complete</source>
        <translation>Validation terminée</translation>
    </message>
    <message>
        <source>All tests passed.  End-of-line bit set.</source>
        <translation>Tous les tests sont réussis. Bit de fin de ligne positionné.</translation>
    </message>
    <message>
        <source>Do you want to save the data?</source>
        <translation>Voulez-vous enregistrer les données ?</translation>
    </message>
    <message>
        <source>Do you want to print the data?</source>
        <translation>Voulez-vous imprimer les données ?</translation>
    </message>
    <message>
        <source>Norvick OVG End-of-Line Report</source>
        <translation>Rapport de fin de ligne OVG Norvick</translation>
    </message>
    <message>
        <source>Norvick End-of-Line Report</source>
        <translation>Rapport de fin de ligne Norvick</translation>
    </message>
    <message>
        <source>Norvick OVG Fault Report</source>
        <translation>Rapport de défauts OVG Norvick</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Date :</translation>
    </message>
    <message>
        <source>Time :</source>
        <translation>Heure :</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>VIN</source>
        <translation>VIN</translation>
    </message>
    <message>
        <source>Trailer Type</source>
        <translation>Type de remorque</translation>
    </message>
    <message>
        <source>ABS System Config</source>
        <translation>Config. du système ABS</translation>
    </message>
    <message>
        <source>ECU Revision</source>
        <translation>Révision de l&apos;ECU</translation>
    </message>
    <message>
        <source>Date of Manufacture</source>
        <translation>Date de fabrication</translation>
    </message>
    <message>
        <source>ECU Orientation</source>
        <translation>Orientation de l&apos;ECU</translation>
    </message>
    <message>
        <source>Facing Front</source>
        <translation>Vers l&apos;avant</translation>
    </message>
    <message>
        <source>Facing Rear</source>
        <translation>Vers l&apos;arrière</translation>
    </message>
    <message>
        <source>Not Applicable</source>
        <translation>Non applicable</translation>
    </message>
    <message>
        <source>Not Available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Défaut</translation>
    </message>
    <message>
        <source> #  </source>
        <translation> #  </translation>
    </message>
    <message>
        <source> #</source>
        <translation> #</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>(No Description Available)</source>
        <translation>(Description non disponible)</translation>
    </message>
    <message>
        <source>No Faults Detected - System OK</source>
        <translation>Aucun défaut détecté - système en bon état</translation>
    </message>
    <message>
        <source>End-of-Line Test Results</source>
        <translation>Résultats des tests de fin de ligne</translation>
    </message>
    <message>
        <source>End-of-Line Test Results:</source>
        <translation>Résultats des tests de fin de ligne :</translation>
    </message>
    <message>
        <source>   Pressure Test   </source>
        <translation>   Test de pression   </translation>
    </message>
    <message>
        <source>   Redundancy Test </source>
        <translation>   Test de redondance </translation>
    </message>
    <message>
        <source>   Sensor Test     </source>
        <translation>   Test des capteurs     </translation>
    </message>
    <message>
        <source>   Sensor</source>
        <translation>   Capteur</translation>
    </message>
    <message>
        <source>   Height Sensor CD</source>
        <translation>   Capteur de hauteur CD</translation>
    </message>
    <message>
        <source>   Lamp Test       </source>
        <translation>   Test du voyant       </translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Capteur</translation>
    </message>
    <message>
        <source>Max Speed (mph)</source>
        <translation>Vitesse max. (mph)</translation>
    </message>
    <message>
        <source>Pressure Test   : </source>
        <translation>Test de pression   : </translation>
    </message>
    <message>
        <source>Redundancy Test   : </source>
        <translation>Test de redondance : </translation>
    </message>
    <message>
        <source>Sensor Test   : </source>
        <translation>Test des capteurs   : </translation>
    </message>
    <message>
        <source>Height Sensor CD : </source>
        <translation>Capt. de hauteur CD : </translation>
    </message>
    <message>
        <source>Lamp Test : </source>
        <translation>Test du voyant : </translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Successfully sent the fault and test information to the printer.</source>
        <translation>Les informations de défauts et de tests ont été envoyées à l&apos;imprimante.</translation>
    </message>
    <message>
        <source>An error occurred while saving</source>
        <translation>Une erreur s&apos;est produite pendant l&apos;enregistrement</translation>
    </message>
    <message>
        <source>An error occurred printing the faults</source>
        <translation>Une erreur s&apos;est produite pendant l&apos;impression des défauts</translation>
    </message>
    <message>
        <source>ODR View</source>
        <translation>Affichage ODR</translation>
    </message>
    <message>
        <source>Operating Data Recorder Overview</source>
        <translation>Synthèse de l&apos;enregistreur de données d&apos;exploitation</translation>
    </message>
    <message>
        <source>Total Number of ABS Activations</source>
        <translation>Nombre total d&apos;activations de l&apos;ABS</translation>
    </message>
    <message>
        <source>Total Number of Stoplight Power Activations</source>
        <translation>Nombre total d&apos;alimentations par les feux stop</translation>
    </message>
    <message>
        <source>Total Number of Level 1 OVG Applications for All ODR Data</source>
        <translation>Nombre total d&apos;interventions OVG de niveau 1 pour toutes les données ODR</translation>
    </message>
    <message>
        <source>Total Number of Level 2 OVG Applications for All ODR Data</source>
        <translation>Nombre total d&apos;interventions OVG de niveau 2 pour toutes les données ODR</translation>
    </message>
    <message>
        <source>Norvick Brake Systems</source>
        <translation>Norvick Brake Systems</translation>
    </message>
    <message>
        <source>Vehicle ID:</source>
        <translation>ID véhicule :</translation>
    </message>
    <message>
        <source>Data Extracted:</source>
        <translation>Extraction :</translation>
    </message>
    <message>
        <source> Total number of ABS activations</source>
        <translation> Nombre total d&apos;activations de l&apos;ABS</translation>
    </message>
    <message>
        <source> Total number of Stoplight Power activations</source>
        <translation> Nombre total d&apos;alimentations par les feux stop</translation>
    </message>
    <message>
        <source> Total number of Level One OVG applications for all ODR data</source>
        <translation> Nombre total d&apos;interventions OVG de niveau un pour toutes les données ODR</translation>
    </message>
    <message>
        <source> Total number of Level Two OVG applications for all ODR data</source>
        <translation> Nombre total d&apos;interventions OVG de niveau deux pour toutes les données ODR</translation>
    </message>
    <message>
        <source>Print OK</source>
        <translation>Impression terminée</translation>
    </message>
    <message>
        <source>ODR Data successfully sent to printer.</source>
        <translation>Les données ODR ont été envoyées à l&apos;imprimante.</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Erreur d&apos;enregistrement</translation>
    </message>
    <message>
        <source>An error occurred while saving:  </source>
        <translation>Une erreur s&apos;est produite pendant l&apos;enregistrement :  </translation>
    </message>
    <message>
        <source>Printer Error</source>
        <translation>Erreur d&apos;impression</translation>
    </message>
    <message>
        <source>An error occurred printing the ODR data:  </source>
        <translation>Une erreur s&apos;est produite pendant l&apos;impression des données ODR :  </translation>
    </message>
    <message>
        <source>Save EEPROM Data</source>
        <translation>Enregistrer les données EEPROM</translation>
    </message>
    <message>
        <source>Save ODR Data</source>
        <translation>Enregistrer les données ODR</translation>
    </message>
    <message>
        <source>Saving EEPROM Data...</source>
        <translation>Enregistrement des données EEPROM...</translation>
    </message>
    <message>
        <source>Save Failed.  Please Try Again.</source>
        <translation>Échec de l&apos;enregistrement. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>EEPROM data not saved.  Please try again.</source>
        <translation>Données EEPROM non enregistrées. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Bytes Remaining To Transfer : </source>
        <translation>Octets restant à transférer : </translation>
    </message>
    <message>
        <source>EEPROM Data saved in </source>
        <translation>Données EEPROM enregistrées dans </translation>
    </message>
    <message>
        <source>Exporting ODR Data...</source>
        <translation>Exportation des données ODR...</translation>
    </message>
    <message>
        <source>ODR data not saved.  Please try again.</source>
        <translation>Données ODR non enregistrées. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>ODR Data saved in </source>
        <translation>Données ODR enregistrées dans </translation>
    </message>
    <message>
        <source>Cannot save.</source>
        <translation>Enregistrement impossible.</translation>
    </message>
    <message>
        <source>The ECU information has not been successfully read.</source>
        <translation>Les informations de l&apos;ECU n&apos;ont pas pu être lues.</translation>
    </message>
    <message>
        <source>Select Data To Delete</source>
        <translation>Sélectionner les données à effacer</translation>
    </message>
    <message>
        <source>Overview, histogram and trip accumulator</source>
        <translation>Synthèse, histogramme et cumul partiel</translation>
    </message>
    <message>
        <source>ABS Accumulator</source>
        <translation>Cumul ABS</translation>
    </message>
    <message>
        <source>OVG Accumulator</source>
        <translation>Cumul OVG</translation>
    </message>
    <message>
        <source>Bus Monitor</source>
        <translation>Moniteur de bus</translation>
    </message>
    <message>
        <source>Bus Monitor:</source>
        <translation>Moniteur de bus :</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>St&amp;art Record</source>
        <translation>&amp;Démarrer le journal</translation>
    </message>
    <message>
        <source>St&amp;op Record</source>
        <translation>&amp;Arrêter le journal</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Data Log</source>
        <translation>Journal de données</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Data Log File Information</source>
        <translation>Fichier du journal de données</translation>
    </message>
    <message>
        <source>Comments to be stored at the beginning of the file:</source>
        <translation>Commentaires à enregistrer au début du fichier :</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Display Options</source>
        <translation>Options d&apos;affichage</translation>
    </message>
    <message>
        <source>Idle Time</source>
        <translation>Temps d&apos;inactivité</translation>
    </message>
    <message>
        <source>Time Stamp</source>
        <translation>Horodatage</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>ECU (*.ecu)|*.ecu</source>
        <translation>ECU (*.ecu)|*.ecu</translation>
    </message>
    <message>
        <source>ECU (*.ecu)|*.ecu|Text (*.txt)|*.txt|All Files (*.*)|*.*</source>
        <translation>ECU (*.ecu)|*.ecu|Texte (*.txt)|*.txt|Tous les fichiers (*.*)|*.*</translation>
    </message>
    <message>
        <source>Text (*.txt)|*.txt|All Files (*.*)|*.*</source>
        <translation>Texte (*.txt)|*.txt|Tous les fichiers (*.*)|*.*</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janvier</translation>
    </message>
    <message>
        <source>February</source>
        <translation>février</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>April</source>
        <translation>avril</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juillet</translation>
    </message>
    <message>
        <source>August</source>
        <translation>août</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octobre</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>December</source>
        <translation>décembre</translation>
    </message>
    <message>
        <source>There is no printer here.  The pages are in </source>
        <translation>Il n'y a pas d'imprimante ici. Les pages sont dans </translation>
    </message>
    <message>
        <source>Modulator H1</source>
        <translation>Modulateur H1</translation>
    </message>
    <message>
        <source>Modulator H2</source>
        <translation>Modulateur H2</translation>
    </message>
    <message>
        <source>Trailer Plan</source>
        <translation>Plan de la remorque</translation>
    </message>
    <message>
        <source>Plan of the trailer</source>
        <translation>Plan de la remorque</translation>
    </message>
    <message>
        <source>Live values</source>
        <translation>Valeurs en direct</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
    <message>
        <source>Clearing the faults. The ECU restarts, which takes some seconds.</source>
        <translation>Effacement des défauts. L&apos;ECU redémarre, ce qui prend quelques secondes.</translation>
    </message>
    <message>
        <source>Front left wheel</source>
        <translation>Roue avant gauche</translation>
    </message>
    <message>
        <source>Middle left wheel</source>
        <translation>Roue centrale gauche</translation>
    </message>
    <message>
        <source>Rear left wheel</source>
        <translation>Roue arrière gauche</translation>
    </message>
    <message>
        <source>Front right wheel</source>
        <translation>Roue avant droite</translation>
    </message>
    <message>
        <source>Middle right wheel</source>
        <translation>Roue centrale droite</translation>
    </message>
    <message>
        <source>Rear right wheel</source>
        <translation>Roue arrière droite</translation>
    </message>
    <message>
        <source>Mounting of the ECU</source>
        <translation>Montage de l&apos;ECU</translation>
    </message>
    <message>
        <source>Braking pressure (psi)</source>
        <translation>Pression de freinage (psi)</translation>
    </message>
    <message>
        <source>Front left tire</source>
        <translation>Pneu avant gauche</translation>
    </message>
    <message>
        <source>Middle left tire</source>
        <translation>Pneu central gauche</translation>
    </message>
    <message>
        <source>Rear left tire</source>
        <translation>Pneu arrière gauche</translation>
    </message>
    <message>
        <source>Front right tire</source>
        <translation>Pneu avant droit</translation>
    </message>
    <message>
        <source>Middle right tire</source>
        <translation>Pneu central droit</translation>
    </message>
    <message>
        <source>Rear right tire</source>
        <translation>Pneu arrière droit</translation>
    </message>
    <message>
        <source>Reading the faults from the ECU...</source>
        <translation>Lecture des défauts de l&apos;ECU...</translation>
    </message>
    <message>
        <source>Saving the data...</source>
        <translation>Enregistrement des données...</translation>
    </message>
    <message>
        <source>Setting the flag takes about ten seconds.  The ECU restarts.</source>
        <translation>Le positionnement de l&apos;indicateur dure environ dix secondes. L&apos;ECU redémarre.</translation>
    </message>
</context>
</TS>
