-- Rows of the empty template basevide.mdz: the lookup values a new school starts with, three ready
-- letter templates, and the access code row (empty: no code).

INSERT INTO passe (passe) VALUES ('');

INSERT INTO genres (détails) VALUES
    ('Monsieur'), ('Madame'), ('Mademoiselle'), ('Monsieur et Madame');

INSERT INTO sexe (détails) VALUES ('Masculin'), ('Féminin');

INSERT INTO assertions (détails) VALUES ('oui'), ('non');

-- Levels with their cycle: 1 nursery school, 2 CP to CE2, 3 CM1 and CM2.
INSERT INTO niveaux (code, détails, cycle) VALUES
    ('TPS', 'Toute petite section', '1'),
    ('PS', 'Petite section', '1'),
    ('MS', 'Moyenne section', '1'),
    ('GS', 'Grande section', '1'),
    ('CP', 'Cours préparatoire', '2'),
    ('CE1', 'Cours élémentaire 1re année', '2'),
    ('CE2', 'Cours élémentaire 2e année', '2'),
    ('CM1', 'Cours moyen 1re année', '3'),
    ('CM2', 'Cours moyen 2e année', '3'),
    ('CLIN', 'Classe d''initiation pour non-francophones', '3'),
    ('CLIS', 'Classe pour l''inclusion scolaire', '2'),
    ('ADA', 'Classe d''adaptation', '2');

-- Socio-professional categories of the national statistics institute (two-character codes).
INSERT INTO csp (code, détails) VALUES
    ('10', 'Agriculteurs exploitants'),
    ('21', 'Artisans'),
    ('22', 'Commerçants et assimilés'),
    ('23', 'Chefs d''entreprise de 10 salariés ou plus'),
    ('31', 'Professions libérales'),
    ('33', 'Cadres de la fonction publique'),
    ('34', 'Professeurs, professions scientifiques'),
    ('35', 'Professions de l''information, des arts et des spectacles'),
    ('37', 'Cadres administratifs et commerciaux d''entreprise'),
    ('38', 'Ingénieurs et cadres techniques d''entreprise'),
    ('42', 'Professeurs des écoles, instituteurs et assimilés'),
    ('43', 'Professions intermédiaires de la santé et du travail social'),
    ('44', 'Clergé, religieux'),
    ('45', 'Professions intermédiaires administratives de la fonction publique'),
    ('46', 'Professions intermédiaires administratives et commerciales des entreprises'),
    ('47', 'Techniciens'),
    ('48', 'Contremaîtres, agents de maîtrise'),
    ('52', 'Employés civils et agents de service de la fonction publique'),
    ('53', 'Policiers et militaires'),
    ('54', 'Employés administratifs d''entreprise'),
    ('55', 'Employés de commerce'),
    ('56', 'Personnels des services directs aux particuliers'),
    ('62', 'Ouvriers qualifiés de type industriel'),
    ('63', 'Ouvriers qualifiés de type artisanal'),
    ('64', 'Chauffeurs'),
    ('65', 'Ouvriers qualifiés de la manutention, du magasinage et du transport'),
    ('67', 'Ouvriers non qualifiés de type industriel'),
    ('68', 'Ouvriers non qualifiés de type artisanal'),
    ('69', 'Ouvriers agricoles'),
    ('71', 'Anciens agriculteurs exploitants'),
    ('72', 'Anciens artisans, commerçants, chefs d''entreprise'),
    ('74', 'Anciens cadres'),
    ('75', 'Anciennes professions intermédiaires'),
    ('77', 'Anciens employés'),
    ('78', 'Anciens ouvriers'),
    ('81', 'Chômeurs n''ayant jamais travaillé'),
    ('83', 'Militaires du contingent'),
    ('84', 'Élèves, étudiants'),
    ('85', 'Personnes sans activité professionnelle de moins de 60 ans (sauf retraités)'),
    ('86', 'Personnes sans activité professionnelle de 60 ans et plus (sauf retraités)'),
    ('99', 'Non renseignée');

-- Nationalities with the country code of the national statistics institute.
INSERT INTO nationalités (détails, code) VALUES
    ('Française', '99100'),
    ('Allemande', '99109'),
    ('Belge', '99131'),
    ('Britannique', '99132'),
    ('Espagnole', '99134'),
    ('Italienne', '99127'),
    ('Portugaise', '99139'),
    ('Suisse', '99140'),
    ('Polonaise', '99122'),
    ('Roumaine', '99114'),
    ('Russe', '99123'),
    ('Ukrainienne', '99155'),
    ('Turque', '99208'),
    ('Algérienne', '99352'),
    ('Marocaine', '99350'),
    ('Tunisienne', '99351'),
    ('Sénégalaise', '99341'),
    ('Malienne', '99335'),
    ('Ivoirienne', '99326'),
    ('Camerounaise', '99322'),
    ('Congolaise', '99324'),
    ('Comorienne', '99397'),
    ('Haïtienne', '99432'),
    ('Chinoise', '99216'),
    ('Vietnamienne', '99243'),
    ('Sri-lankaise', '99235'),
    ('Afghane', '99212'),
    ('Syrienne', '99206'),
    ('Canadienne', '99401'),
    ('Américaine', '99404');

INSERT INTO situations_familiales (détails) VALUES
    ('Mariés'), ('Pacsés'), ('Vie maritale'), ('Séparés'), ('Divorcés'), ('Célibataire'), ('Veuf'),
    ('Veuve'), ('Famille d''accueil'), ('Tuteur');

INSERT INTO langues_vivantes (détails) VALUES
    ('Anglais'), ('Allemand'), ('Espagnol'), ('Italien'), ('Portugais'), ('Arabe'), ('Chinois'),
    ('Russe'), ('Occitan'), ('Breton'), ('Basque'), ('Corse'), ('Alsacien'), ('Créole');

-- Letter templates: the school certificate, the certificate of leaving and the invitation to the meeting with parents.
INSERT INTO documents (intitulé_bouton, destinataire_document, titre_document,
    paragraphe1_document, paragraphe2_document, paragraphe3_document,
    paragraphe4_document, paragraphe5_document, paragraphe6_document,
    politesse_document, post_scriptum,
    affichage_coordonnées_élève, affichage_coordonnées_responsable_légal,
    affichage_coordonnées_directeur, affichage_signature_directeur, affichage_date) VALUES
(
    'Certificat de scolarité', 'À qui de droit', 'CERTIFICAT DE SCOLARITÉ',
    'Je soussigné(e), directeur (directrice) de l''école, certifie que l''élève dont les coordonnées figurent ci-dessus est régulièrement inscrit(e) dans notre établissement pour l''année scolaire en cours.',
    'Ce certificat est délivré à la demande de la famille, pour servir et valoir ce que de droit.',
    '', '', '', '',
    '', '',
    1, 0, 1, 1, 1
),
(
    'Certificat de radiation', 'À qui de droit', 'CERTIFICAT DE RADIATION',
    'Je soussigné(e), directeur (directrice) de l''école, certifie que l''élève dont les coordonnées figurent ci-dessus a été radié(e) des registres de notre établissement.',
    'Le livret scolaire et le dossier de l''élève seront transmis à l''école d''accueil dès réception de la demande de celle-ci.',
    'Ce certificat est remis à la famille, qui le présentera lors de l''inscription dans la nouvelle école.',
    '', '', '',
    '', '',
    1, 1, 1, 1, 1
),
(
    'Réunion de parents', 'Aux parents de l''élève', 'INVITATION À LA RÉUNION DE PARENTS',
    'Madame, Monsieur,',
    'L''équipe enseignante a le plaisir de vous inviter à la réunion de rentrée, qui se tiendra dans la classe de votre enfant.',
    'Nous vous y présenterons le fonctionnement de la classe, les projets de l''année et l''organisation de l''école. Nous répondrons volontiers à vos questions.',
    'Votre présence est vivement souhaitée.',
    '', '',
    'Veuillez agréer, Madame, Monsieur, l''expression de nos salutations distinguées.',
    'Merci de retourner le coupon ci-dessous signé à l''enseignant(e) de votre enfant.',
    0, 1, 0, 1, 1
);
